// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/URLRequest.h"

#include <optional>

namespace lodestar
{

/// The request to send after a response: the redirected request, or none when the response is the answer. A redirect is
/// not followed when it leaves TLS, names no valid address or names an address with a user in it. A redirect to another
/// origin loses the session key, and is not followed at all when the request has a body: a logon's body holds the
/// password.
std::optional<URLRequest> requestAfterResponse(const URLRequest& sent, const URLResponse& response);

} // namespace lodestar
