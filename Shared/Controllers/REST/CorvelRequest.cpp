// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/CorvelRequest.h"

#include "Platform/URLLoading/BodyMemory.h"

#include <cstdio>

namespace lodestar
{

CorvelRequest::CorvelRequest() : m_closure([](const URLResponse*, std::string*, const Error*) {}) {}

void CorvelRequest::sendRequest(URLRequest request, const OperationQueue& queue, Closure closure)
{
    const auto connection = URLConnection::make(std::move(request), shared_from_this());
    m_closure = std::move(closure);
    connection->setDelegateQueue(queue);
    connection->start();
    std::puts("Starting request");
}

void CorvelRequest::willSendRequestForAuthenticationChallenge(AuthenticationChallenge& challenge)
{
    if (challenge.authenticationMethod() == AuthenticationChallenge::Method::ServerTrust) {
        std::puts("Ignoring SSL");
        challenge.useCredential();
    } else {
        challenge.continueWithoutCredential();
    }
}

void CorvelRequest::didReceiveResponse(const URLResponse& response)
{
    m_response = response;
    m_data.clear();
}

void CorvelRequest::didReceiveData(std::span<const char> data)
{
    std::puts("Receiving data");
    appendToBody(m_data, data);
}

void CorvelRequest::connectionDidFinishLoading()
{
    m_closure(&m_response, &m_data, nullptr);
}

void CorvelRequest::didFailWithError(const Error& error)
{
    m_closure(nullptr, nullptr, &error);
}

} // namespace lodestar
