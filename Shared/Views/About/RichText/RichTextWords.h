// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

namespace lodestar
{

/// What a control word asks for.
enum class RichTextAction : std::uint8_t {
    Nothing, ///< also for words that are not known
    SkipGroup,
    FontTable,
    ColorTable,
    Marker,
    Character, ///< `argument`
    Align,     ///< `argument`: RichTextAlignment
    Paragraph,
    ParagraphDefaults,
    StyleDefaults,
    Bold,
    Italic,
    Underline,
    NoUnderline,
    Hidden,
    Font,
    DefaultFont,
    CharacterSet,
    Size,
    Color,
    Red,
    Green,
    Blue,
    LeftIndent,
    RightIndent,
    FirstLineIndent,
    SpaceBefore,
    SpaceAfter,
    CodePage,
    MacCodePage,
    OtherCodePage,
    Unicode,
    UnicodeFallback
};

struct RichTextWord {
    std::string_view name;
    RichTextAction action = RichTextAction::Nothing;
    char32_t argument = 0;
};

/// The word of that name; one without an action for names that are not known.
const RichTextWord& richTextWordNamed(std::string_view name);

} // namespace lodestar
