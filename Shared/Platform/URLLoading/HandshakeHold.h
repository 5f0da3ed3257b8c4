// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <curl/curl.h>

#include <memory>

namespace lodestar
{

/// Holds one connection's handshake at the point where the server has shown its certificate and nothing of ours but the
/// greeting has been sent. A connection can so be made ready before it is known what it will carry. One thread.
///
/// A handshake that waits is a piece of OpenSSL's that is suspended with a stack of its own: it is to be released
/// before its connection may go.
struct HandshakeHold : std::enable_shared_from_this<HandshakeHold> {
    /// The sanitizers know nothing of such stacks: with them no handshake waits.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    static constexpr bool isPossible = false;
#else
    static constexpr bool isPossible = true;
#endif

    bool released = false;
    bool reached = false; ///< the handshake waits for the release, or has passed it

    /// Sets up the security of a connection that libcurl makes; `hold` is a `HandshakeHold` that is owned by a shared
    /// pointer, or null for a handshake that goes through. To be given to libcurl as CURLOPT_SSL_CTX_FUNCTION. Part of
    /// the module that knows OpenSSL: called through its table, see CurlModule.h.
    static CURLcode secureConnection(CURL* easy, void* context, void* hold);
};

} // namespace lodestar
