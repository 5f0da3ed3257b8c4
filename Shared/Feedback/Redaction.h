// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What stands in a redacted text where something secret stood.
inline constexpr std::string_view redactionMark = "[removed]";

/// The text without the secrets, wherever they stand and in whatever of the usual disguises (as a log escapes them,
/// percent-encoded, as XML), and without what follows the names under which session keys and passwords travel. Nothing
/// that reaches a report should hold a secret to begin with: this is the net below.
///
/// Secrets of fewer than four bytes are not looked for: taking away every "a" of a text would tell the secret.
std::string redacted(std::string_view text, const std::vector<std::string>& secrets);

} // namespace lodestar
