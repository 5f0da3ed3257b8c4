// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace lodestar
{

struct RichTextToken {
    enum class Kind {
        End,
        GroupOpen,
        GroupClose,
        Text,   ///< `text`: bytes without braces, backslashes and line ends
        Byte,   ///< `value`: one byte of text, written in hexadecimal
        Word,   ///< `text`: the control word; `value` its parameter, `hasValue` whether it has one
        Symbol, ///< `value`: the character behind the backslash
        Data    ///< bytes of a binary picture or the like, passed over
    };
    Kind kind = Kind::End;
    std::string_view text{};
    int value = 0;
    bool hasValue = false;

    /// What a switch says: on, unless its parameter is 0.
    bool isOn() const { return !hasValue || value != 0; }
};

/// Cuts rich text into its tokens. Any bytes may be given; each is read once.
class RichTextTokens
{
public:
    /// The bytes outlive this.
    explicit RichTextTokens(std::string_view bytes) : m_bytes(bytes) {}
    RichTextToken next();

private:
    RichTextToken control();
    RichTextToken word();
    RichTextToken hexadecimalByte();
    std::optional<int> parameter();
    bool atEnd() const { return m_at >= m_bytes.size(); }

    std::string_view m_bytes;
    std::size_t m_at = 0;
};

} // namespace lodestar
