// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lodestar
{

/// The meaning of bytes from 0x80 on. Those of other code pages cannot be told.
enum class RichTextCodePage : std::uint8_t { Windows1252, MacRoman, Unknown };

constexpr char32_t replacementCharacter = 0xFFFD;

RichTextCodePage codePageNumbered(int number);
/// U+FFFD for a byte that stands for no character.
char32_t characterOfByte(std::uint8_t byte, RichTextCodePage codePage);
/// In UTF-8. What is no character is written as U+FFFD.
void appendCharacter(std::string& text, char32_t character);
/// The text with every byte that is no UTF-8 made U+FFFD, and without control characters but tabs.
std::string sanitizedUtf8(std::string_view bytes);
/// Without the white space around it.
std::string trimmedText(const std::string& text);

} // namespace lodestar
