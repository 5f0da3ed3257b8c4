// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <curl/curl.h>

#include <chrono>
#include <memory>
#include <optional>

namespace lodestar
{

/// Pauses one connection's handshake after the server has shown its certificate, when only the greeting has been sent.
/// So a connection can be made ready before its request is known. One thread.
///
/// A paused handshake is a suspended OpenSSL job with its own stack: release the hold before the connection is
/// destroyed.
struct HandshakeHold : std::enable_shared_from_this<HandshakeHold> {
    /// The sanitizers cannot follow such stacks; under a sanitizer no handshake pauses.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    static constexpr bool isPossible = false;
#else
    static constexpr bool isPossible = true;
#endif

    using Clock = std::chrono::steady_clock;

    bool released = false;
    bool reached = false; ///< the handshake is paused at the hold, or has passed it
    Clock::time_point reachedAt;
    Clock::time_point releasedAt;

    void release()
    {
        released = true;
        releasedAt = Clock::now();
    }
    /// How long the handshake stood still; valid once it was released and reached the hold.
    std::chrono::microseconds heldFor() const
    {
        return reached && releasedAt > reachedAt
                   ? std::chrono::duration_cast<std::chrono::microseconds>(releasedAt - reachedAt)
                   : std::chrono::microseconds(0);
    }

    /// Sets up TLS for a connection that libcurl makes. Pass it to libcurl as CURLOPT_SSL_CTX_FUNCTION; `beginning` is
    /// a `HandshakeBeginning`. Lives in the module that knows OpenSSL; call it through the module's table, see
    /// CurlModule.h.
    static CURLcode secureConnection(CURL* easy, void* context, void* beginning);
};

/// What one connection's handshake begins with.
struct HandshakeBeginning {
    HandshakeHold* hold = nullptr; ///< owned by a shared pointer; null for a handshake without a pause
    /// When the server was reached and the handshake began. libcurl tells it only of handshakes that succeeded.
    std::optional<HandshakeHold::Clock::time_point> at;
};

} // namespace lodestar
