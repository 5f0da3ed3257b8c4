// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/CurlSupport.h"
#include "Platform/URLLoading/HandshakeHold.h"

#include <memory>
#include <string>

namespace lodestar
{

/// A libcurl handle with every option set that concerns the connection to a server, and no option that concerns a
/// request.
struct ConnectionHandle {
    enum class Handshake { Whole, Held };

    std::shared_ptr<HandshakeHold> hold; ///< null when the handshake is not held
    std::unique_ptr<HandshakeBeginning> handshake;
    CurlEasy easy; ///< null when memory is out

    static ConnectionHandle make(const std::string& url, Handshake handshake);
};

} // namespace lodestar
