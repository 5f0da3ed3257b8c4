// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/URLConnection.h"

#include <string>

namespace lodestar
{

/// What a person is told when a request fails: the one table of reasons and sentences. English, to be translated where
/// it is shown, in the context "ErrorWords". Short enough for one line on a phone.
std::string wordsFor(URLErrorCode code);

/// Likewise when a console answers a logon with a status other than 200.
std::string wordsForLogonStatus(int statusCode);

} // namespace lodestar
