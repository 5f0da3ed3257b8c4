// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/RESTHandler.h"

#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// Where a console serves the objects of a type.
std::string consoleURL(const Corvel& corvel, std::string_view schema, std::string_view type);

/// Longer than what servers take in a header field. What a console gives beyond it is no session key.
inline constexpr std::size_t longestSessionKey = 8192;

/// The session key that is stored for the record's address.
SessionKey storedSessionKey(const Corvel& corvel);

/// The session key of the body of a logon answer, or the error with which the logon is rejected.
Result<SessionKey> sessionKeyOfAnswer(std::string_view body);

/// What the log says of an answer that is not good: the transport's error, or the status.
std::string causeOf(const Result<URLLoad>& load);

/// The error of a logon whose answer's status is not 200: the promise type's own, without a reason, so that no caller
/// can tell one status from another. Its description says to a person what the status means.
Error logonRefusal(int statusCode);

/// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates).
bool isUTF8(std::string_view bytes);

} // namespace lodestar
