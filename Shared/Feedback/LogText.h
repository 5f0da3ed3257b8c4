// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lodestar
{

/// The longest message that a log line carries, in bytes before escaping.
inline constexpr std::size_t maximumLogMessage = std::size_t{16} << 10;

/// Appends a message so that it stays on its line and shows as what it is, whoever wrote it: control characters, line
/// and paragraph separators, characters that turn the writing direction and bytes that are not UTF-8 become \n, \r, \t
/// or \xNN, and a backslash is doubled, so that no message can look like another one or like a line of its own.
/// Messages beyond `maximumLogMessage` are cut, with the number of bytes left out.
void appendLogText(std::string& line, std::string_view message);

} // namespace lodestar
