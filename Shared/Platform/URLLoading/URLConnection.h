// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/URLLoading/URLRequest.h"

#include <memory>
#include <span>
#include <string>

namespace lodestar
{

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

} // namespace lodestar
