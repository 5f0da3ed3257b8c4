// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The text as one line that a terminal shows and does not obey: without control characters and without those that turn
/// the direction of text; line ends are blanks. What is not UTF-8 shows as U+FFFD.
std::string plainText(std::string_view text);

/// How many columns a terminal gives the text, which is plain.
std::size_t columnsOf(std::string_view text);
/// The text, or its beginning and "…" where it has more columns.
std::string cutTo(std::string_view text, std::size_t columns);
/// The text in lines of at most so many columns, broken at blanks where there are any. At least one line.
std::vector<std::string> wrapped(std::string_view text, std::size_t columns);

} // namespace lodestar
