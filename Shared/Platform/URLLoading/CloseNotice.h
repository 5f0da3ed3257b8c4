// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

struct ssl_st;

namespace lodestar
{

/// Whether the other end of a TLS connection has sent its close notice. libcurl takes any end of the stream for the end
/// of a body without a length; only the notice tells a whole body from a cut one.
struct CloseNotice {
    bool received = false;

    /// The connection's notice, watched from the first call on. Null when memory is out. One thread. Lives in the
    /// module that knows OpenSSL; call it through the module's table, see CurlModule.h.
    static std::shared_ptr<const CloseNotice> ofConnection(ssl_st* connection);
};

} // namespace lodestar
