// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{
/// @file
/// How lists are kept as one text among the settings: an entry a line, its fields between tabs. Fields may hold any
/// text: addresses and names are as somebody typed them.

/// The text without a line end or a tab in it.
std::string escapedField(std::string_view text);
std::string unescapedField(std::string_view text);

/// One line, with its end.
std::string lineOfFields(const std::vector<std::string>& fields);
/// The fields of each line.
std::vector<std::vector<std::string>> linesOfFields(std::string_view text);

} // namespace lodestar
