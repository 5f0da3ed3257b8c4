// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/LoadClient.h"

#include <algorithm>

namespace lodestar
{

namespace
{

// The most memory to reserve on the strength of a server's Content-Length.
constexpr std::int64_t trustedLength = 32LL * 1024 * 1024;

} // namespace

bool LoadClient::acceptsServer(const ServerCertificate& certificate, Handshake)
{
    return ServerTrust::shared().isRemembered(certificate.host(), certificate.port(), certificate.leaf()) ||
           certificate.systemObjection().empty();
}

void LoadClient::didReceiveResponse(const URLResponse& response)
{
    m_load.response = response;
    m_load.body.clear();
    if (response.expectedContentLength > 0) {
        m_load.body.reserve(static_cast<std::size_t>(std::min(response.expectedContentLength, trustedLength)));
    }
}

void LoadClient::didEnd(std::optional<Error> error, HeldBytes held)
{
    if (error) {
        m_load = {};
        m_completion(std::move(*error), std::move(held));
    } else {
        m_completion(std::move(m_load), std::move(held));
    }
}

} // namespace lodestar
