// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichTextCharacters.h"

#include <array>
#include <cstddef>

namespace lodestar
{
namespace
{

// 0x80 to 0x9F; from there on the page is Latin 1.
constexpr std::array<char16_t, 32> windows1252 = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                                  0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

// 0x80 to 0xFF.
constexpr std::array<char16_t, 128> macRoman = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3, 0x00E5,
    0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3, 0x00F2, 0x00F4,
    0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3, 0x00A7, 0x2022, 0x00B6,
    0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8, 0x221E, 0x00B1, 0x2264, 0x2265,
    0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA, 0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF,
    0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB, 0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5,
    0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D, 0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044,
    0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02, 0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1,
    0x00CB, 0x00C8, 0x00CD, 0x00CE, 0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9,
    0x0131, 0x02C6, 0x02DC, 0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7};

/// The length of the sequence that starts with the byte, 0 for none.
std::size_t sequenceLength(std::uint8_t first)
{
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first < 0xE0) {
        return 2;
    }
    if (first >= 0xE0 && first < 0xF0) {
        return 3;
    }
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

/// The character at the start of the bytes and its length; U+FFFD and 1 where there is none.
char32_t decode(std::string_view bytes, std::size_t& length)
{
    const auto first = static_cast<std::uint8_t>(bytes.front());
    length = sequenceLength(first);
    if (length == 1) {
        return first;
    }
    if (length == 0 || length > bytes.size()) {
        length = 1;
        return replacementCharacter;
    }
    char32_t character = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<std::uint8_t>(bytes[i]);
        if ((next & 0xC0U) != 0x80U) {
            length = 1;
            return replacementCharacter;
        }
        character = (character << 6U) | (next & 0x3FU);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (overlong || surrogate || character > 0x10FFFF) {
        length = 1;
        return replacementCharacter;
    }
    return character;
}

} // namespace

RichTextCodePage codePageNumbered(int number)
{
    switch (number) {
    case 0:
    case 1252:
        return RichTextCodePage::Windows1252;
    case 10000:
        return RichTextCodePage::MacRoman;
    default:
        return RichTextCodePage::Unknown;
    }
}

char32_t characterOfByte(std::uint8_t byte, RichTextCodePage codePage)
{
    if (byte < 0x80) {
        return byte;
    }
    switch (codePage) {
    case RichTextCodePage::Windows1252:
        return byte < 0xA0 ? windows1252[byte - 0x80U] : byte;
    case RichTextCodePage::MacRoman:
        return macRoman[byte - 0x80U];
    case RichTextCodePage::Unknown:
        break;
    }
    return replacementCharacter;
}

void appendCharacter(std::string& text, char32_t character)
{
    if (character > 0x10FFFF || (character >= 0xD800 && character < 0xE000)) {
        character = replacementCharacter;
    }
    const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xF0U | (character >> 18U));
        put(0x80U | ((character >> 12U) & 0x3FU));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
}

std::string sanitizedUtf8(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        std::size_t length = 0;
        const char32_t character = decode(bytes, length);
        if (character == '\t' || (character >= 0x20 && character != 0x7F)) {
            appendCharacter(text, character);
        }
        bytes.remove_prefix(length);
    }
    return text;
}

std::string trimmedText(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t\n");
    const std::size_t last = text.find_last_not_of(" \t\n");
    return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
}

} // namespace lodestar
