// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lodestar
{

/// The longest message in a log line, in bytes before escaping.
inline constexpr std::size_t maximumLogMessage = std::size_t{16} << 10;

/// Appends a message so that it stays on one line and shows exactly what it is, whoever wrote it. Control characters,
/// line and paragraph separators, characters that change the writing direction and bytes that are not UTF-8 become
/// `\n`, `\r`, `\t` or `\xNN`. A backslash is doubled, so that no message looks like another or like more than one
/// line. Messages longer than `maximumLogMessage` are cut; the number of missing bytes is appended.
void appendLogText(std::string& line, std::string_view message);

} // namespace lodestar
