// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

struct RichTextColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(const RichTextColor&, const RichTextColor&) = default;
};

struct RichTextStyle {
    int halfPoints = 24;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    std::optional<RichTextColor> color{}; ///< nothing leaves the screen's own colour
    friend bool operator==(const RichTextStyle&, const RichTextStyle&) = default;
};

/// A stretch of text in one style: UTF-8, never empty. Its only control characters are tabs and line feeds; a line feed
/// is a line break inside the paragraph.
struct RichTextRun {
    std::string text;
    RichTextStyle style;
};

/// One paragraph. Lengths in twentieths of a point, within ±31680 (22 inches).
struct RichTextParagraph {
    int leftIndent = 0;
    int firstLineIndent = 0; ///< added to the left indent; negative where a list's marker hangs
    int spaceBefore = 0;
    int spaceAfter = 0;
    std::string marker{};            ///< marker of a list's item, as in "•" or "2."; empty for none
    std::vector<RichTextRun> runs{}; ///< empty for an empty line
};

/// Beyond a limit, nothing more is read.
struct RichTextLimits {
    static constexpr std::size_t bytes = std::size_t(4) * 1024 * 1024;
    static constexpr std::size_t depth = 256;         ///< nested groups
    static constexpr std::size_t pieces = 100000;     ///< paragraphs and runs together
    static constexpr std::size_t tableEntries = 1024; ///< for symbol fonts and for colours each
};

/// Reads the part of rich text that the legal text and the release notes use: sizes, bold, italic, underlines, colours,
/// indents, list markers, tabs and breaks, in code page 1252 and in Unicode. Everything else is skipped, and every font
/// is the screen's own. Any bytes may be given: of damaged rich text, the readable part is returned; bytes that are no
/// rich text give no paragraphs. Time and memory are linear in the size. Any thread.
std::vector<RichTextParagraph> readRichText(std::string_view bytes);

} // namespace lodestar
