// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/URLConnection.h"

#include "Platform/URLLoading/BodyUnpacker.h"
#include "Platform/URLLoading/FreedMemory.h"
#include "Platform/URLLoading/NetworkThread.h"
#include "Platform/URLLoading/Transfer.h"
#include "Platform/URLLoading/URLError.h"

#include <atomic>
#include <cassert>
#include <mutex>
#include <vector>

namespace lodestar
{

namespace
{

/// Pieces of a body wait for a slow delegate as strings of their own. So many bytes of told pieces are worth a sweep.
constexpr std::size_t toldBeforeSweep = 16UL * 1024 * 1024;

class ServerTrustChallenge : public AuthenticationChallenge
{
public:
    explicit ServerTrustChallenge(ServerCertificate certificate) : m_certificate(std::move(certificate)) {}

    Method authenticationMethod() const override { return Method::ServerTrust; }
    std::string host() const override { return m_certificate.host(); }
    int port() const override { return m_certificate.port(); }
    void useCredential() override
    {
        ServerTrust::shared().remember(m_certificate.host(), m_certificate.port(), m_certificate.leaf());
        m_accepted = true;
    }
    void continueWithoutCredential() override { m_accepted = false; }
    /// A delegate that does not answer counts as continuing without a credential.
    bool mayGoOn() const { return m_accepted || m_certificate.systemObjection().empty(); }

private:
    ServerCertificate m_certificate;
    bool m_accepted = false;
};

/// The connection that users hold; also the transfer's client. The transfer keeps it alive while the network works for
/// it. The waiting calls keep it alive until its delegate has heard the end.
class Connection final : public URLConnection, public TransferClient
{
public:
    Connection(URLRequest request, std::shared_ptr<URLConnectionDelegate> delegate)
        : m_request(std::move(request)), m_delegate(std::move(delegate))
    {
    }

    void setDelegateQueue(const OperationQueue& queue) override { m_queue = queue; }
    void start() override
    {
        assert(m_transfer == nullptr);
        m_transfer = std::make_shared<Transfer>(std::move(m_request), self());
        NetworkThread::shared().start(m_transfer);
    }
    void cancel() override
    {
        if (m_transfer != nullptr) {
            NetworkThread::shared().cancel(m_transfer);
        }
    }

    bool acceptsServer(const ServerCertificate& certificate, Handshake handshake) override
    {
        const bool known =
            ServerTrust::shared().isRemembered(certificate.host(), certificate.port(), certificate.leaf());
        if (handshake == Handshake::Fresh || !known) {
            post([self = self(), certificate] { self->challengeDelegate(certificate); });
        }
        return true;
    }
    bool wantsFreshHandshake(const Origin& origin) const override
    {
        return ServerTrust::shared().wantsFreshHandshake(origin.host, origin.port);
    }
    void didReceiveResponse(const URLResponse& response) override
    {
        post([self = self(), response] {
            if (!self->m_failure) {
                self->m_unpacker.reset();
                if (BodyUnpacker::isNeeded(response)) {
                    self->m_unpacker.emplace(response, HeldBytes::Claim::Whole);
                }
                self->m_delegate->didReceiveResponse(response);
            }
        });
    }
    void didReceiveData(std::span<const char> data) override
    {
        post([self = self(), bytes = std::string(data.data(), data.size())] { self->tellData(bytes); });
    }
    void didEnd(std::optional<Error> error, HeldBytes held) override
    {
        held.setDelivering();
        post([self = self(), error = std::move(error), held = std::move(held)] {
            if (!self->m_failure && error) {
                self->m_failure = error;
            } else if (!self->m_failure && self->m_unpacker) {
                self->m_failure = self->m_unpacker->error();
            }
            if (self->m_failure) {
                self->m_delegate->didFailWithError(*self->m_failure);
            } else {
                self->m_delegate->connectionDidFinishLoading();
            }
            self->m_delegate.reset();
            self->m_unpacker.reset();
        });
    }

private:
    std::shared_ptr<Connection> self() { return std::static_pointer_cast<Connection>(shared_from_this()); }

    /// Has the call to the delegate made on its queue: one call at a time, in order.
    void post(Task call)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_calls.push_back(std::move(call));
            if (std::exchange(m_isCalling, true)) {
                return;
            }
        }
        m_queue.addOperation([self = self()] { self->makeCalls(); });
    }
    void makeCalls()
    {
        std::vector<Task> calls;
        for (;;) {
            {
                const std::lock_guard lock(m_mutex);
                calls.clear();
                calls.swap(m_calls);
                if (calls.empty()) {
                    m_isCalling = false;
                    return;
                }
            }
            for (Task& call : calls) {
                call();
                call.reset();
            }
        }
    }

    void challengeDelegate(const ServerCertificate& certificate)
    {
        if (m_failure) {
            return;
        }
        ServerTrustChallenge challenge(certificate);
        m_delegate->willSendRequestForAuthenticationChallenge(challenge);
        if (!challenge.mayGoOn()) {
            leave(urlError(URLErrorCode::ServerCertificateUntrusted));
        }
    }
    void tellData(std::span<const char> bytes)
    {
        m_toldBytes += bytes.size();
        if (m_toldBytes >= toldBeforeSweep) {
            m_toldBytes = 0;
            giveFreedMemoryBack();
        }
        if (m_failure) {
            return;
        }
        if (!m_unpacker) {
            m_delegate->didReceiveData(bytes);
        } else if (!m_unpacker->unpack(bytes,
                                       [this](std::span<const char> piece) { m_delegate->didReceiveData(piece); })) {
            leave(*m_unpacker->error());
        }
    }
    void leave(Error failure)
    {
        m_failure = std::move(failure);
        cancel();
    }

    URLRequest m_request;
    OperationQueue m_queue;
    std::shared_ptr<Transfer> m_transfer;
    std::mutex m_mutex;
    std::vector<Task> m_calls;
    bool m_isCalling = false;
    // Once started, only calls use the members below.
    std::shared_ptr<URLConnectionDelegate> m_delegate;
    std::optional<BodyUnpacker> m_unpacker; ///< unpacks the last response's body, if it is packed
    std::size_t m_toldBytes = 0;            ///< since freed memory was last given back
    std::optional<Error> m_failure;         ///< once set, the delegate hears only of the end
};

} // namespace

std::shared_ptr<URLConnection> URLConnection::make(URLRequest request, std::shared_ptr<URLConnectionDelegate> delegate)
{
    return std::make_shared<Connection>(std::move(request), std::move(delegate));
}

} // namespace lodestar
