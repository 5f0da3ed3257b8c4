// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/URLErrorCode.h"

#include <string>

namespace lodestar
{

/// The text that a person sees when a request fails. This is the one table of reasons and sentences. The sentences are
/// English; the screen that shows one translates it, in the context "ErrorWords". Each fits on one line on a phone.
std::string wordsFor(URLErrorCode code);

/// The text for a logon that a console answers with a status other than 200.
std::string wordsForLogonStatus(int statusCode);

} // namespace lodestar
