// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/LoadClient.h"

#include "Platform/URLLoading/BodyMemory.h"

namespace lodestar
{

bool LoadClient::acceptsServer(const ServerCertificate& certificate, Handshake)
{
    return ServerTrust::shared().isRemembered(certificate.host(), certificate.port(), certificate.leaf()) ||
           certificate.systemObjection().empty();
}

void LoadClient::didReceiveResponse(const URLResponse& response)
{
    m_load.response = response;
    m_load.body.clear();
    reserveBody(m_load.body, response.expectedContentLength);
}

void LoadClient::didReceiveData(std::span<const char> data)
{
    appendToBody(m_load.body, data);
}

void LoadClient::didEnd(std::optional<Error> error, HeldBytes held)
{
    if (error) {
        freeBody(m_load.body);
        m_completion(std::move(*error), std::move(held));
    } else {
        m_completion(std::move(m_load), std::move(held));
    }
}

} // namespace lodestar
