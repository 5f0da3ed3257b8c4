// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichTextTokens.h"

#include <algorithm>
#include <cstdint>

namespace lodestar
{
namespace
{

// Longer words and numbers are cut off: none that is known comes near.
constexpr std::size_t longestWord = 32;
constexpr int largestParameter = 1000000000;

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

int hexadecimalDigit(char character)
{
    if (isDigit(character)) {
        return character - '0';
    }
    if (character >= 'a' && character <= 'f') {
        return character - 'a' + 10;
    }
    return character >= 'A' && character <= 'F' ? character - 'A' + 10 : -1;
}

} // namespace

RichTextToken RichTextTokens::next()
{
    while (!atEnd() && (m_bytes[m_at] == '\r' || m_bytes[m_at] == '\n')) {
        ++m_at;
    }
    if (atEnd()) {
        return {};
    }
    switch (m_bytes[m_at]) {
    case '{':
        ++m_at;
        return {.kind = RichTextToken::Kind::GroupOpen};
    case '}':
        ++m_at;
        return {.kind = RichTextToken::Kind::GroupClose};
    case '\\':
        ++m_at;
        return control();
    default:
        break;
    }
    const std::size_t start = m_at;
    m_at = std::min(m_bytes.find_first_of("{}\\\r\n", start), m_bytes.size());
    return {.kind = RichTextToken::Kind::Text, .text = m_bytes.substr(start, m_at - start)};
}

RichTextToken RichTextTokens::control()
{
    if (atEnd()) {
        return {};
    }
    if (isLetter(m_bytes[m_at])) {
        return word();
    }
    const char symbol = m_bytes[m_at++];
    if (symbol == '\'') {
        return hexadecimalByte();
    }
    return {.kind = RichTextToken::Kind::Symbol, .value = static_cast<std::uint8_t>(symbol)};
}

RichTextToken RichTextTokens::hexadecimalByte()
{
    const int high = m_at < m_bytes.size() ? hexadecimalDigit(m_bytes[m_at]) : -1;
    const int low = m_at + 1 < m_bytes.size() ? hexadecimalDigit(m_bytes[m_at + 1]) : -1;
    if (high < 0 || low < 0) {
        // Damaged: nothing is taken for its digits.
        return {.kind = RichTextToken::Kind::Byte, .value = 0};
    }
    m_at += 2;
    return {.kind = RichTextToken::Kind::Byte, .value = high * 16 + low};
}

RichTextToken RichTextTokens::word()
{
    const std::size_t start = m_at;
    while (!atEnd() && isLetter(m_bytes[m_at])) {
        ++m_at;
    }
    RichTextToken token{.kind = RichTextToken::Kind::Word,
                        .text = m_bytes.substr(start, std::min(m_at - start, longestWord))};
    const std::optional<int> value = parameter();
    token.value = value.value_or(0);
    token.hasValue = value.has_value();
    // One blank belongs to the word.
    if (!atEnd() && m_bytes[m_at] == ' ') {
        ++m_at;
    }
    if (token.text == "bin") {
        const std::size_t skipped = token.value > 0 ? static_cast<std::size_t>(token.value) : 0;
        m_at += std::min(skipped, m_bytes.size() - m_at);
        return {.kind = RichTextToken::Kind::Data};
    }
    return token;
}

std::optional<int> RichTextTokens::parameter()
{
    std::size_t at = m_at;
    const bool negative = at < m_bytes.size() && m_bytes[at] == '-';
    at += negative ? 1 : 0;
    if (at >= m_bytes.size() || !isDigit(m_bytes[at])) {
        return std::nullopt;
    }
    int value = 0;
    for (; at < m_bytes.size() && isDigit(m_bytes[at]); ++at) {
        value = value < largestParameter / 10 ? value * 10 + (m_bytes[at] - '0') : largestParameter;
    }
    m_at = at;
    return negative ? -value : value;
}

} // namespace lodestar
