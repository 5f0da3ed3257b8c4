// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/About/RichText/RichText.h"
#include "Views/About/RichText/RichTextTokens.h"
#include "Views/About/RichText/RichTextWords.h"

namespace lodestar
{

/// What a word changes in the style of characters, or in the format of a paragraph. Words of other kinds change
/// nothing. Lengths and sizes beyond what a word processor writes are cut to that.
void applyStyleWord(RichTextStyle& style, const RichTextWord& word, const RichTextToken& token);
void applyParagraphWord(RichTextParagraph& paragraph, const RichTextWord& word, const RichTextToken& token);

} // namespace lodestar
