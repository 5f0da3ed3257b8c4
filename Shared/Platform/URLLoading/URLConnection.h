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

/// Codes of the transport's errors, in the domain `urlErrorDomain`.
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
    /// Leaves the decision to the system: a server whose certificate the system does not accept is refused.
    virtual void continueWithoutCredential() = 0;
};

/// Receives a connection's progress on the connection's delegate queue, one call at a time, in order: a server-trust
/// challenge for each new connection to a server, responses (one for each redirect and the last), data of the last
/// response, then exactly one of finished and failed.
///
/// The server-trust challenge comes before any response, but the request may be on its way by then: the handshake
/// accepts the server provisionally, and the delegate's answer decides about what follows. That is safe for a delegate
/// that accepts every server, as ours does, and the network thread need not wait for a delegate. A delegate that
/// refuses servers must not be given requests with secrets. A connection kept from an earlier request brings no new
/// challenge, unless its server's certificate is not remembered.
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

/// One transfer. From `start` until the last callback has returned, the connection keeps itself and its delegate alive.
class URLConnection : public std::enable_shared_from_this<URLConnection>
{
public:
    static std::shared_ptr<URLConnection> make(URLRequest request, std::shared_ptr<URLConnectionDelegate> delegate);
    virtual ~URLConnection() = default;
    /// Call before `start`.
    virtual void setDelegateQueue(const OperationQueue& queue) = 0;
    virtual void start() = 0;
    /// Any thread. The delegate gets `Cancelled` unless the transfer has already ended.
    virtual void cancel() = 0;
};

/// A plain call's outcome: a response with its body, or an error.
struct URLLoad {
    URLResponse response;
    std::string body;
};

/// Sends the request under the system's trust rules (see ServerTrust.h) and calls the completion exactly once, on the
/// queue. Returns at once. When the request's clocks start, see NetworkThread.h. A redirect is followed within TLS
/// only; a redirect that cannot be followed is the answer.
///
/// The returned function ends the transfer, from any thread: the completion then gets `Cancelled`, unless it was called
/// before.
std::function<void()> sendAsynchronousRequest(URLRequest request, const OperationQueue& queue,
                                              std::function<void(Result<URLLoad>)> completion);

/// Says that so many requests to the address's server will probably follow. While the caller keeps the returned object,
/// connections are made ready for them where the network is slow enough for that to pay. On such a connection only the
/// handshake's greeting is sent until a request takes it; the usual rules of trust then apply. Any thread.
std::shared_ptr<void> expectRequests(const std::string& url, int requests);

/// Like `sendAsynchronousRequest`, but blocks the calling thread, which runs the transfer itself on kept-alive
/// connections of its own.
Result<URLLoad> sendSynchronousRequest(const URLRequest& request);

} // namespace lodestar
