// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <charconv>
#include <string_view>

namespace lodestar
{

struct RichTextToken {
    enum class Kind {
        End,
        GroupOpen,
        GroupClose,
        Text,  ///< `text`: bytes without braces, backslashes and line ends
        Byte,  ///< `value`: one byte of text, written as two hexadecimal digits; 0 for a damaged one
        Word,  ///< `text`: the control word; `value`: its parameter, or 1 without one, which turns a switch on
        Symbol ///< `value`: the character behind the backslash
    };
    Kind kind = Kind::End;
    std::string_view text{};
    int value = 1;
};

/// Cuts rich text into tokens. Any bytes may be given; each is read once. The bytes must outlive this object.
class RichTextTokens
{
public:
    explicit RichTextTokens(std::string_view bytes) : m_rest(bytes) {}

    RichTextToken next()
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
            return control();
        default:
            return {.kind = RichTextToken::Kind::Text, .text = take(m_rest.find_first_of("{}\\\r\n"))};
        }
    }

private:
    static constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    static constexpr int largestParameter = 1'000'000'000;

    RichTextToken control()
    {
        const std::string_view name = take(std::min(m_rest.find_first_not_of(letters), m_rest.size()));
        if (!name.empty()) {
            return word(name);
        }
        const std::string_view symbol = take(1);
        if (symbol == "'") {
            return hexadecimalByte();
        }
        return symbol.empty() ? RichTextToken{}
                              : RichTextToken{.kind = RichTextToken::Kind::Symbol, .value = symbol.front()};
    }
    RichTextToken word(std::string_view name)
    {
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
    RichTextToken hexadecimalByte()
    {
        RichTextToken token{.kind = RichTextToken::Kind::Byte, .value = 0};
        const std::string_view digits = m_rest.substr(0, 2);
        if (digits.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos && digits.size() == 2) {
            std::from_chars(digits.data(), digits.data() + digits.size(), token.value, 16);
            take(2);
        }
        return token;
    }
    std::string_view take(std::size_t count)
    {
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    std::string_view m_rest;
};

} // namespace lodestar
