// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

struct ssl_st;

namespace lodestar
{

/// Whether the other end of a secured connection has said that it is closing. libcurl takes any end of the stream for
/// the end of a body that has no length; only the notice tells such a body from one that was cut.
struct CloseNotice {
    bool received = false;

    /// The connection's own notice, watched from the first call on. Null when memory is out. One thread. Part of the
    /// module that knows OpenSSL: called through its table, see CurlModule.h.
    static std::shared_ptr<const CloseNotice> ofConnection(ssl_st* connection);
};

} // namespace lodestar
