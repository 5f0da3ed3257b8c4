// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/CloseNotice.h"
#include "Platform/URLLoading/ConnectionHandle.h"
#include "Platform/URLLoading/HeldBytes.h"
#include "Platform/URLLoading/ServerCertificate.h"
#include "Platform/URLLoading/URLConnection.h"

#include <chrono>
#include <memory>
#include <optional>
#include <span>

namespace lodestar
{

class PausedTransfers;

enum class Handshake { Fresh, Reused };

/// Who a transfer works for. Called on the thread that drives the transfer; must not block.
class TransferClient
{
public:
    virtual ~TransferClient() = default;
    /// Before anything is sent. False leaves the server; a reused connection is first replaced by a fresh one.
    virtual bool acceptsServer(const ServerCertificate& certificate, Handshake handshake) = 0;
    /// True when a server that was refused before should be met with a fresh handshake.
    virtual bool wantsFreshHandshake(const Origin& origin) const = 0;
    virtual void didReceiveResponse(const URLResponse& response) = 0;
    /// Of the body as it comes: where the response says so, packed.
    virtual void didReceiveData(std::span<const char> data) = 0;
    /// Last and exactly once. The held bytes are the body's share of the process's limit, to be kept as long as the
    /// body waits for its reader.
    virtual void didEnd(std::optional<Error> error, HeldBytes held) = 0;
};

/// One request with its redirects, as a sequence of hops on one libcurl handle. It owns every rule about what is sent,
/// what is accepted and how much of it; who drives the handle is none of its business. One thread at a time.
///
/// The driver adds `handle()` to its multi handle after `start`, takes it out when libcurl is done with it, and calls
/// `hopEnded`: true asks for the handle to be added once more. It calls `fail` (with the handle out) to end early.
class Transfer
{
public:
    using Clock = std::chrono::steady_clock;

    Transfer(URLRequest request, std::shared_ptr<TransferClient> client);
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;
    ~Transfer() = default;

    /// Starts the clocks; a person's run since it was made, since a person waits from then on. False when there is
    /// nothing to drive, because the transfer has failed already. With a connection that was made ahead, to the same
    /// server, its handle goes on as this transfer's.
    bool start(std::optional<ConnectionHandle> ahead = std::nullopt);
    CURL* handle() const { return m_connection.easy.get(); }
    /// Scheme, host and port of the first hop, as they stood in the address.
    const std::string& server() const { return m_server; }
    static std::string serverOf(const std::string& url);
    Urgency urgency() const { return m_request.urgency; }
    /// Whether `start` may be given a connection that was made ahead.
    bool mayTakeConnectionAhead() const;
    /// Until when a person's transfer waits for one of its server's connections to come free. Where none can be made
    /// meanwhile, there is nothing to wait for.
    Clock::time_point patienceEnd() const;
    /// Once it has ended: whether it had a connection made, and whether its connection may serve the next one.
    bool madeConnection() const { return m_madeConnection; }
    bool leavesConnection() const { return m_leavesConnection; }
    bool hopEnded(CURLcode result);
    void fail(URLErrorCode code);

    /// Before `start`: a body that finds no room is to wait, and to be put into the list. Without one it is refused.
    void setPausedTransfers(PausedTransfers& list) { m_pausedTransfers = &list; }
    bool isPaused() const { return m_paused; }
    Clock::time_point pausedSince() const { return m_pausedSince; }
    std::size_t heldBytes() const { return m_held.count(); }
    /// What a paused one would take at once if it went on.
    std::size_t nextHeldBytes() const { return m_nextHeld; }
    void setPausedSince(Clock::time_point since) { m_pausedSince = since; }
    void setClaim(HeldBytes::Claim claim) { m_claim = claim; }
    /// Lets a paused one try again. False when its hop has ended, with `refusedResult` as libcurl's word.
    bool goOn();
    /// Gives a paused one up.
    void refuseForRoom();
    static constexpr CURLcode refusedResult = CURLE_WRITE_ERROR;

    /// Makes the transfer leave what comes of its body where it is, or take it again. Does nothing before: libcurl
    /// would tell the lines of a header that it holds back as one. Nor does it to a transfer that is paused.
    void rest(bool rests);
    /// Whether the answer is just being awaited or is just coming in, for a person.
    bool goesBeforeOthers(Clock::time_point now) const;

    /// When the transfer is overdue if nothing more arrives: the idle limit or the total one. Monotonic clock.
    Clock::time_point deadline() const;

private:
    bool prepareHop(std::optional<ConnectionHandle> ahead = std::nullopt);
    bool lostConnectionAhead() const;
    void end(std::optional<Error> error);
    void refuse(URLErrorCode code, std::string reason = {});
    bool bodyIsWhole() const;
    Error errorOf(CURLcode result) const;

    bool connectionReady();
    bool headerLine(std::string_view line);
    bool headersComplete();
    bool bodyBytes(std::span<const char> bytes);
    bool hasRoom(std::size_t bytes);
    std::size_t nextStep() const;
    std::int64_t wireBytes() const;
    bool framingIsBounded();
    template <typename Work>
    bool guarded(Work work);

    static int prerequest(void* self, char*, char*, int, int);
    static std::size_t header(char* bytes, std::size_t size, std::size_t count, void* self);
    static std::size_t body(char* bytes, std::size_t size, std::size_t count, void* self);
    static int progress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t);

    const TransferLimits m_limits;
    const std::string m_server;
    URLRequest m_request; ///< of the current hop
    std::shared_ptr<TransferClient> m_client;
    ConnectionHandle m_connection;
    CurlList m_headers;
    std::optional<Origin> m_origin;

    const Clock::time_point m_made = Clock::now();
    Clock::time_point m_started;
    Clock::time_point m_clocksStart;
    Clock::time_point m_lastProgress;
    Clock::time_point m_answered;    ///< when the current answer's first line came
    std::size_t m_received = 0;      ///< body and header bytes of all hops, as they came
    std::int64_t m_unseenBefore = 0; ///< what the connection had received when the hop began, less `m_received`

    int m_redirects = 0;
    bool m_needsFreshConnection = false;
    bool m_retriedFresh = false;
    bool m_madeConnection = false;
    bool m_leavesConnection = false;
    std::size_t m_headerBytes = 0;
    std::size_t m_bodyBytes = 0; ///< of the current response, as they came
    HeldBytes m_held;
    std::size_t m_nextHeld = 0;
    PausedTransfers* m_pausedTransfers = nullptr;
    bool m_paused = false;
    bool m_hasPaused = false; ///< of this body, since it last went on
    Clock::time_point m_pausedSince;
    HeldBytes::Claim m_claim = HeldBytes::Claim::Fair;

    URLResponse m_response;
    bool m_inHeaders = false;
    bool m_inBody = false;            ///< of the hop's last response
    std::optional<URLRequest> m_next; ///< the current response is a redirect to follow
    std::shared_ptr<const CloseNotice> m_closeNotice;
    std::optional<Error> m_refusal; ///< why a callback of ours stopped libcurl
};

} // namespace lodestar
