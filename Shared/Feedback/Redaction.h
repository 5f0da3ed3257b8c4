// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// Stands in a redacted text in place of a secret.
inline constexpr std::string_view redactionMark = "[removed]";

/// Removes the secrets from the text wherever they appear, plain or in the usual other forms (escaped as in a log,
/// percent-encoded, as XML). Also removes the values after the names under which session keys and passwords are sent.
/// Reports should hold no secrets in the first place; this is the safety net.
///
/// Secrets of fewer than four bytes are not removed: removing every "a" from a text would reveal the secret.
std::string redacted(std::string_view text, const std::vector<std::string>& secrets);

} // namespace lodestar
