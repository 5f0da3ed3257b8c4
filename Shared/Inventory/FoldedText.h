// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// Appends the text, in UTF-8, without case and diacritics: "Zürich" is as "ZURICH", "Łódź" as "lodz", "Straße" as
/// "strasse". Control characters, line ends among them, become blanks. Bytes that are not UTF-8 become the replacement
/// character. Any thread.
void appendFolded(std::string& folded, std::string_view text);
std::string foldedText(std::string_view text);

/// A part of a text, in bytes.
struct TextPart {
    std::size_t start = 0;
    std::size_t length = 0;
};

/// The first part of the text that is, folded, the wanted text, which is folded already: whole letters with their
/// diacritics, so that it can be marked. None when there is no such part, or nothing is wanted.
std::optional<TextPart> firstFoldedMatch(std::string_view text, std::string_view wanted);

} // namespace lodestar
