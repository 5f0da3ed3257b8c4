// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/ServerTrust.h"

#include <chrono>
#include <memory>
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
    /// What the leaf certificate says of itself.
    struct Details {
        std::string subject; ///< the common name where that is all; else the whole name, "CN=…,O=…"
        std::string issuer;
        bool selfIssued = false; ///< subject and issuer are the same name
        std::chrono::system_clock::time_point validFrom;
        std::chrono::system_clock::time_point validUntil;
    };
    Details details() const { return m_chain->details(); }
    /// Asks the system's authorities about the chain, its dates and the host's name. Empty means that they accept; any
    /// other text is the reason against. Costs the verification of a chain.
    std::string systemObjection() const { return m_chain->objection(m_host); }

private:
    /// Lives in the module; only it knows what a chain is.
    struct Chain {
        Chain() = default;
        Chain(const Chain&) = delete;
        Chain& operator=(const Chain&) = delete;
        virtual ~Chain() = default;
        virtual Details details() const = 0;
        virtual std::string objection(const std::string& host) const = 0;
    };
    struct PresentedChain;

    ServerCertificate() = default;
    std::string m_host;
    int m_port = 0;
    ServerTrust::Fingerprint m_leaf{};
    std::shared_ptr<const Chain> m_chain;
};

} // namespace lodestar
