// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"
#include "Platform/URLLoading/URLErrorCode.h"

#include <string>

namespace lodestar
{

/// An error of the transport. Its description is a sentence for the user; the reason is for the log.
Error urlError(URLErrorCode code, std::string reason = {});

/// The error code that libcurl's result (a `CURLcode`) stands for.
URLErrorCode urlErrorCodeOfTransfer(int curlCode);

} // namespace lodestar
