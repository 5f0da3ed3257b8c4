// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/URLConnection.h"

#include <functional>
#include <memory>
#include <span>
#include <string>

namespace lodestar
{

/// Sends one request to a console and accepts whatever certificate the console presents: expired, self-signed or
/// wrongly named. That is meant: consoles come with certificates that nobody can verify. Plain requests to the console
/// then expect the accepted certificate. This class never answers a challenge with a user name or a password.
///
/// Make it with `std::make_shared` and use it for one request; then release it. The connection keeps it alive until the
/// closure has run.
class CorvelRequest : public URLConnectionDelegate, public std::enable_shared_from_this<CorvelRequest>
{
public:
    /// Receives the response and the body, or the error; the others are null. All three belong to the request and live
    /// as long as the call. A status other than 200 is no error.
    using Closure = std::function<void(const URLResponse* response, std::string* data, const Error* error)>;

    CorvelRequest();

    const Closure& closure() const { return m_closure; }
    const URLResponse& response() const { return m_response; }
    const std::string& data() const { return m_data; }

    /// Returns at once. The closure is called exactly once, on the queue.
    void sendRequest(URLRequest request, const OperationQueue& queue, Closure closure);

    void willSendRequestForAuthenticationChallenge(AuthenticationChallenge& challenge) override;
    void didReceiveResponse(const URLResponse& response) override;
    void didReceiveData(std::span<const char> data) override;
    void connectionDidFinishLoading() override;
    void didFailWithError(const Error& error) override;

private:
    Closure m_closure;
    URLResponse m_response; ///< the last response
    std::string m_data;     ///< the last response's body
};

} // namespace lodestar
