// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"
#include "Platform/URLLoading/URLConnection.h"

#include <string>

namespace lodestar
{

/// An error of the transport. Its description is a sentence for the user; the reason is for the log.
Error urlError(URLErrorCode code, std::string reason = {});

/// What libcurl's result (a `CURLcode`) means to a caller.
URLErrorCode urlErrorCodeOfTransfer(int curlCode);

} // namespace lodestar
