// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
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
    RichTextToken next();

private:
    RichTextToken word();
    RichTextToken hexadecimalByte();
    std::string_view take(std::size_t count);

    std::string_view m_rest;
};

} // namespace lodestar
