// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <curl/curl.h>

#include <memory>

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

    bool released = false;
    bool reached = false; ///< the handshake is paused at the hold, or has passed it

    /// Sets up TLS for a connection that libcurl makes. Pass it to libcurl as CURLOPT_SSL_CTX_FUNCTION. `hold` is a
    /// `HandshakeHold` that a shared pointer owns, or null for a handshake without a pause. Lives in the module that
    /// knows OpenSSL; call it through the module's table, see CurlModule.h.
    static CURLcode secureConnection(CURL* easy, void* context, void* hold);
};

} // namespace lodestar
