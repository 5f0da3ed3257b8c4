// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Controllers/REST/SessionKey.h"
#include "Platform/Result.h"
#include "Platform/URLLoading/URLRequest.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lodestar
{

/// The console's address for the objects of a type.
std::string consoleURL(const Corvel& corvel, std::string_view schema, std::string_view type);

/// Longer than the header fields that servers accept. A longer text from a console is no session key.
inline constexpr std::size_t longestSessionKey = 8192;

/// The session key stored for the record's address.
SessionKey storedSessionKey(const Corvel& corvel);

/// The session key in the body of a logon's answer, or the error with which to reject the logon.
Result<SessionKey> sessionKeyOfAnswer(std::string_view body);

/// The log's words for a failed answer: the transport's error, or the status.
std::string causeOf(const Result<URLLoad>& load);

/// The error of a logon answered with a status other than 200: the promises' own error without a reason, so that no
/// caller can tell one status from another. Its description tells a person what the status means.
Error logonRefusal(int statusCode);

} // namespace lodestar
