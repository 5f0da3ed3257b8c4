// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace lodestar
{

/// The one place where trust is decided. It remembers, for the life of the process, the leaf certificate that a
/// delegate accepted for a host and port. A plain request accepts a certificate that the system's authorities vouch
/// for, or exactly the remembered one; anything else is refused and logged. Thread-safe.
class ServerTrust
{
public:
    using Fingerprint = std::array<std::uint8_t, 32>; ///< SHA-256 of the leaf certificate's DER form

    static ServerTrust& shared();

    void remember(const std::string& host, int port, const Fingerprint& leaf);
    bool isRemembered(const std::string& host, int port, const Fingerprint& leaf) const;
    std::optional<Fingerprint> remembered(const std::string& host, int port) const;
    void forgetAll();

    /// The function is called, on the refusing thread, for each server that a plain request refused for its
    /// certificate. The log, which this module cannot call, learns of refusals this way. Null removes the function.
    using RefusalHandler = std::function<void(const std::string& host, int port, const std::string& reason)>;
    void setRefusalHandler(RefusalHandler handler);
    /// For the transport only: reports a refusal, and makes the next delegate-based connection to the server shake
    /// hands anew, so that a changed certificate is seen although an older connection is still open.
    void refuse(const std::string& host, int port, const std::string& reason);
    bool wantsFreshHandshake(const std::string& host, int port) const;

private:
    ServerTrust();
    ~ServerTrust() = default;
    struct State;
    State* m_state;
};

} // namespace lodestar
