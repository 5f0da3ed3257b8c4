// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
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

private:
    ServerTrust();
    ~ServerTrust() = default;
    struct State;
    State* m_state;
};

} // namespace lodestar
