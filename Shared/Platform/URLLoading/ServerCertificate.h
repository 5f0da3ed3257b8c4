// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/ServerTrust.h"

#include <functional>
#include <optional>
#include <string>

struct ssl_st;

namespace lodestar
{

/// The certificates that a server presented on one connection. A value, to be read on any thread.
class ServerCertificate
{
public:
    /// None when the connection has no TLS or the server presented no certificate. Lives in the module that knows
    /// OpenSSL; call it through the module's table, see CurlModule.h.
    static std::optional<ServerCertificate> ofConnection(const ssl_st* connection, std::string host, int port);

    const std::string& host() const { return m_host; }
    int port() const { return m_port; }
    const ServerTrust::Fingerprint& leaf() const { return m_leaf; }
    /// Asks the system's authorities about the chain, its dates and the host's name. Empty means that they accept; any
    /// other text is the reason against. Costs the verification of a chain.
    std::string systemObjection() const { return m_objection(m_host); }

private:
    ServerCertificate() = default;
    std::string m_host;
    int m_port = 0;
    ServerTrust::Fingerprint m_leaf{};
    std::function<std::string(const std::string& host)> m_objection; ///< keeps the chain alive
};

} // namespace lodestar
