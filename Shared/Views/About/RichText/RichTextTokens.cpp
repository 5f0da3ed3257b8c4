// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichTextTokens.h"

#include <algorithm>
#include <charconv>

namespace lodestar
{
namespace
{

constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr int largestParameter = 1'000'000'000;

} // namespace

std::string_view RichTextTokens::take(std::size_t count)
{
    const std::string_view taken = m_rest.substr(0, count);
    m_rest.remove_prefix(taken.size());
    return taken;
}

RichTextToken RichTextTokens::next()
{
    take(std::min(m_rest.find_first_not_of("\r\n"), m_rest.size()));
    if (m_rest.empty()) {
        return {};
    }
    switch (m_rest.front()) {
    case '{':
        take(1);
        return {.kind = RichTextToken::Kind::GroupOpen};
    case '}':
        take(1);
        return {.kind = RichTextToken::Kind::GroupClose};
    case '\\':
        take(1);
        return word();
    default:
        return {.kind = RichTextToken::Kind::Text, .text = take(m_rest.find_first_of("{}\\\r\n"))};
    }
}

RichTextToken RichTextTokens::word()
{
    const std::string_view name = take(std::min(m_rest.find_first_not_of(letters), m_rest.size()));
    if (name.empty()) {
        const std::string_view symbol = take(1);
        if (symbol == "'") {
            return hexadecimalByte();
        }
        return symbol.empty() ? RichTextToken{}
                              : RichTextToken{.kind = RichTextToken::Kind::Symbol, .value = symbol.front()};
    }
    RichTextToken token{.kind = RichTextToken::Kind::Word, .text = name};
    const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), token.value);
    if (error == std::errc::result_out_of_range) {
        token.value = m_rest.front() == '-' ? -largestParameter : largestParameter;
    }
    take(static_cast<std::size_t>(end - m_rest.data()));
    // One blank after a control word is part of the word.
    take(m_rest.starts_with(' ') ? 1 : 0);
    if (name == "bin") {
        take(static_cast<std::size_t>(std::max(0, token.value)));
    }
    return token;
}

RichTextToken RichTextTokens::hexadecimalByte()
{
    RichTextToken token{.kind = RichTextToken::Kind::Byte, .value = 0};
    const std::string_view digits = m_rest.substr(0, 2);
    if (digits.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos && digits.size() == 2) {
        std::from_chars(digits.data(), digits.data() + digits.size(), token.value, 16);
        take(2);
    }
    return token;
}

} // namespace lodestar
