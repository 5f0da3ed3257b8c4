// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/OperationQueue.h"
#include "Platform/Result.h"
#include "Platform/URLLoading/TransferLimits.h"
#include "Platform/URLLoading/URLRequest.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace lodestar
{

/// Codes of the transport's errors, domain `urlErrorDomain`.
enum class URLErrorCode {
    Unknown = -1,
    Cancelled = -999,
    BadURL = -1000,
    TimedOut = -1001,
    CannotFindHost = -1003,
    CannotConnectToHost = -1004,
    NetworkConnectionLost = -1005,
    TooManyRedirects = -1007,
    BadServerResponse = -1011,
    DataLengthExceedsMaximum = -1103,
    SecureConnectionFailed = -1200,
    ServerCertificateUntrusted = -1202,
};

/// What a server asks a client to prove or to accept before it goes on.
class AuthenticationChallenge
{
public:
    enum class Method { ServerTrust, HTTPBasic, HTTPDigest, ClientCertificate, Other };

    virtual ~AuthenticationChallenge() = default;
    virtual Method authenticationMethod() const = 0;
    virtual std::string host() const = 0;
    virtual int port() const = 0;
    /// Accepts the presented certificate (server trust only) and has `ServerTrust` remember it.
    virtual void useCredential() = 0;
    /// Goes on with what the system alone would do: a server whose certificate it does not vouch for is left.
    virtual void continueWithoutCredential() = 0;
};

/// Receives a connection's progress on the connection's delegate queue, one call at a time, in order: a server-trust
/// challenge for each new connection to a server, responses (one per redirect and the last), data of the last
/// response, then exactly one of finished and failed.
///
/// The server-trust challenge comes before any response, but the request may be on its way by then: the handshake
/// accepts the server provisionally and the delegate's word decides about what follows. That is sound for a delegate
/// that accepts every server, which ours does, and keeps the network thread from waiting for a delegate. A delegate
/// that means to refuse servers must not be given requests that carry secrets. A connection that is kept from an
/// earlier request brings no new challenge, unless its server's certificate is not remembered.
class URLConnectionDelegate
{
public:
    virtual ~URLConnectionDelegate() = default;
    virtual void willSendRequestForAuthenticationChallenge(AuthenticationChallenge& challenge) = 0;
    virtual void didReceiveResponse(const URLResponse& response) = 0;
    virtual void didReceiveData(std::span<const char> data) = 0;
    virtual void connectionDidFinishLoading() = 0;
    virtual void didFailWithError(const Error& error) = 0;
};

/// One transfer. It keeps its delegate, and itself, alive from `start` until the last callback has returned.
class URLConnection : public std::enable_shared_from_this<URLConnection>
{
public:
    static std::shared_ptr<URLConnection> make(URLRequest request, std::shared_ptr<URLConnectionDelegate> delegate);
    virtual ~URLConnection() = default;
    /// Before `start`.
    virtual void setDelegateQueue(const OperationQueue& queue) = 0;
    virtual void start() = 0;
    /// Any thread. The delegate gets `Cancelled` unless the transfer has already ended.
    virtual void cancel() = 0;
};

/// The outcome of a plain call: a response with its body, or an error.
struct URLLoad {
    URLResponse response;
    std::string body;
};

/// Sends the request with the system's trust rules (see ServerTrust.h) and calls the completion exactly once, on the
/// queue. Returns at once. The request's clocks start when it has a connection, see NetworkThread.h. A redirect is
/// followed within TLS only; one that cannot be followed is the answer.
///
/// The returned function ends the transfer, from any thread: the completion gets `Cancelled`, unless it has been
/// called.
std::function<void()> sendAsynchronousRequest(URLRequest request, const OperationQueue& queue,
                                              std::function<void(Result<URLLoad>)> completion);

/// Says that so many requests to the address's server will follow, if all goes well: as long as the answer is kept,
/// connections are made ready for them where the network is slow enough to be worth it. Nothing but the greeting of a
/// handshake is sent on one before a request takes it, under the usual rules of trust. Any thread.
std::shared_ptr<void> expectRequests(const std::string& url, int requests);

/// As above, blocking the calling thread, which runs the transfer itself on a kept-alive connection of its own.
Result<URLLoad> sendSynchronousRequest(const URLRequest& request);

} // namespace lodestar
