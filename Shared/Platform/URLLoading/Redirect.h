// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/URLRequest.h"

#include <optional>

namespace lodestar
{

/// What to send after a response: the redirected request, or none when the response is the answer. A redirect that
/// leaves TLS, names no address or names one with a user in it is not followed. One that leaves the origin goes
/// without the session key, and is not followed at all when the request has a body: a logon's holds the password.
std::optional<URLRequest> requestAfterResponse(const URLRequest& sent, const URLResponse& response);

} // namespace lodestar
