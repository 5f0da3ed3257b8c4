// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichTextFormat.h"

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr int longestLength = 31680; ///< twentieths of a point
constexpr int largestSize = 800;     ///< half points

int length(const RichTextToken& token)
{
    return std::clamp(token.value, -longestLength, longestLength);
}

} // namespace

void applyStyleWord(RichTextStyle& style, const RichTextWord& word, const RichTextToken& token)
{
    switch (word.action) {
    case RichTextAction::Bold:
        style.bold = token.isOn();
        break;
    case RichTextAction::Italic:
        style.italic = token.isOn();
        break;
    case RichTextAction::Underline:
        style.underline = token.isOn();
        break;
    case RichTextAction::NoUnderline:
        style.underline = false;
        break;
    case RichTextAction::Size:
        style.halfPoints = token.value > 0 ? std::min(token.value, largestSize) : RichTextStyle().halfPoints;
        break;
    default:
        break;
    }
}

void applyParagraphWord(RichTextParagraph& paragraph, const RichTextWord& word, const RichTextToken& token)
{
    switch (word.action) {
    case RichTextAction::ParagraphDefaults:
        paragraph = {};
        break;
    case RichTextAction::Align:
        paragraph.alignment = static_cast<RichTextAlignment>(word.argument);
        break;
    case RichTextAction::LeftIndent:
        paragraph.leftIndent = length(token);
        break;
    case RichTextAction::RightIndent:
        paragraph.rightIndent = length(token);
        break;
    case RichTextAction::FirstLineIndent:
        paragraph.firstLineIndent = length(token);
        break;
    case RichTextAction::SpaceBefore:
        paragraph.spaceBefore = std::max(0, length(token));
        break;
    case RichTextAction::SpaceAfter:
        paragraph.spaceAfter = std::max(0, length(token));
        break;
    default:
        break;
    }
}

} // namespace lodestar
