// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace lodestar
{
namespace
{

/// Runs between bars, each behind the letters of its looks; the marker in front, a slash after a paragraph.
std::string described(const std::string& bytes)
{
    std::string text;
    for (const RichTextParagraph& paragraph : readRichText(bytes)) {
        text += paragraph.marker.empty() ? "" : "<" + paragraph.marker + ">";
        std::string separator;
        for (const RichTextRun& run : paragraph.runs) {
            text += std::exchange(separator, "|");
            const std::string looks = std::string(run.style.bold ? "b" : "") + (run.style.italic ? "i" : "") +
                                      (run.style.underline ? "u" : "");
            text += (looks.empty() ? "" : looks + ":") + run.text;
        }
        text += "/";
    }
    return text;
}

TEST(RichTextTest, TextLooksCharactersAndListsAreReadAndTheRestIsPassedOver)
{
    const std::pair<const char*, const char*> texts[] = {
        {"plain \\b bold\\b0  {\\i both {\\b in}} out\\par next", "plain |b:bold| |i:both |bi:in| out/next/"},
        {"{\\ul a}\\ulnone b{\\ul c\\plain d}\\par\\par e\\par", "u:a|b|u:c|d//e/"},
        {"a\\line b\\tab c\\par d\\\ne", "a\nb\tc/d/e/"},
        // Line ends of the file are none of the text, and one blank belongs to a word.
        {"one\r\n two\\b0\nthree \\b  four", "one twothree |b: four/"},
        {"a\\~b\\_c\\-d\\\\\\{\\}\\emdash\\ldblquote e\\rdblquote", "a\u00A0b\u2011cd\\{}\u2014\u201Ce\u201D/"},
        // Characters as numbers and as bytes; half a pair has no character.
        {"\\u8364?\\u8364 ?\\'80\\'e4x\\u-10179?", "€€€äx\uFFFD/"},
        {"\\uc2\\u233\\'c3\\'a9\\uc0\\u233z{\\uc1\\u233 ab}\\u233 c", "éézébéc/"},
        {"\\u233{a}", "éa/"},       // a group is no stand-in
        {"\\u233\\b0\\'41", "éA/"}, // a word is one
        {"a\\u0?\\'00\\'0a\\'zz\x01", "azz/"},
        {"{\\fonttbl{\\f0 Lato;}{\\f1\\fcharset2 Symbol;}}{\\listtext\\pard\\f1\\'b7\\tab}\\pard\\f0 one\\par "
         "{\\listtext\\f0 2.\\tab}two\\par three{\\listtext\\u-3913 ?}",
         "<•>one/<2.>two/<•>three/"},
        {"{\\info{\\title T}}{\\*\\generator G {x}}a{\\pict\\bin4 }}}{ 00ff}{\\header h}b", "ab/"},
        {"{\\field{\\*\\fldinst{HYPERLINK \"x\"}}{\\fldrslt link}}{\\footnote f}", "link/"},
        {"{\\stylesheet{\\s1 heading;}}a\\unknownword5 b", "ab/"},
        {"a}b{c", "a/"}, // the text ends with its group
    };
    for (const auto& [text, expected] : texts) {
        EXPECT_EQ(described("{\\rtf1\\ansi " + std::string(text) + "}"), expected) << text;
    }
}

TEST(RichTextTest, SizesColoursAndLengthsAreKeptAndClamped)
{
    const auto paragraphs = readRichText("{\\rtf1{\\colortbl;\\red1\\green2\\blue300;\\red9;}"
                                         "first \\fs40\\cf1 second \\fs0\\cf2 third\\cf99\\fs99999999999 fourth"
                                         "\\li99999999\\fi-360\\sb-5\\sa200\\par\\pard\\sb20 last}");
    ASSERT_EQ(paragraphs.size(), 2U);
    const auto& runs = paragraphs[0].runs;
    ASSERT_EQ(runs.size(), 4U);
    EXPECT_EQ(runs[0].style, RichTextStyle());
    EXPECT_EQ(runs[1].style, (RichTextStyle{.halfPoints = 40, .color = RichTextColor{1, 2, 255}}));
    EXPECT_EQ(runs[2].style, (RichTextStyle{.color = RichTextColor{9, 0, 0}}));
    EXPECT_EQ(runs[3].style, RichTextStyle{.halfPoints = 800});
    EXPECT_EQ(paragraphs[0].leftIndent, 31680);
    EXPECT_EQ(paragraphs[0].firstLineIndent, -360);
    EXPECT_EQ(paragraphs[0].spaceBefore, 0);
    EXPECT_EQ(paragraphs[0].spaceAfter, 200);
    EXPECT_EQ(paragraphs[1].leftIndent, 0);
    EXPECT_EQ(paragraphs[1].spaceBefore, 20) << "the last paragraph has its format although no word ends it";
}

TEST(RichTextTest, DamagedAndHostileTextIsReadAsFarAsItGoes)
{
    const std::string whole =
        "{\\rtf1{\\fonttbl{\\f0 A;}}{\\colortbl;\\red5;}\\b x\\u233?\\'e9{\\listtext 1}y\\bin2 ab\\par}";
    // From the signature on no cut shows a word or a brace as text.
    for (std::size_t length = 5; length <= whole.size(); ++length) {
        const std::string shown = described(whole.substr(0, length));
        EXPECT_EQ(shown.find_first_of("\\{}"), std::string::npos) << length << shown;
    }
    EXPECT_EQ(described("") + described("no rich text"), "");
    EXPECT_EQ(described("{\\rtf1 a{\\b b"), "a|b:b/");
    EXPECT_EQ(described("{\\rtf1 a\\"), "a/");
    EXPECT_EQ(described("{\\rtf1 a\\bin999999999 b}"), "a/");

    EXPECT_EQ(described("{\\rtf1 a" + std::string(1000000, '{') + "lost}"), "a/");
    std::string runs = "{\\rtf1 ";
    for (int i = 0; i < 200000; ++i) {
        runs += "\\b x\\b0 y";
    }
    EXPECT_EQ(readRichText(runs).at(0).runs.size(), RichTextLimits::pieces);
    EXPECT_LT(described("{\\rtf1 " + std::string(2 * RichTextLimits::bytes, 'x')).size(), RichTextLimits::bytes);
}

} // namespace
} // namespace lodestar
