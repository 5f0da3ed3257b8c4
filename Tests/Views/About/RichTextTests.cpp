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
std::string described(const RichTextDocument& document)
{
    std::string text;
    for (const RichTextParagraph& paragraph : document.paragraphs) {
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

std::string read(const std::string& body)
{
    return described(readRichText("{\\rtf1\\ansi " + body + "}"));
}

TEST(RichTextTest, ParagraphsAndLooksFollowGroupsAndWords)
{
    EXPECT_EQ(read("plain \\b bold\\b0  {\\i both {\\b in}} out\\par next"),
              "plain |b:bold| |i:both |bi:in| out/next/");
    EXPECT_EQ(read("{\\ul a}\\ulnone b{\\ul c\\plain d}\\par\\par e\\par"), "u:a|b|u:c|d//e/");
    EXPECT_EQ(read("a\\line b\\tab c\\par d\\\ne"), "a\nb\tc/d/e/");
    // Line ends of the file are none of the text, and one blank belongs to a word.
    EXPECT_EQ(read("one\r\n two\\b0\nthree \\b  four"), "one twothree |b: four/");
    EXPECT_EQ(read("a\\~b\\_c\\-d\\\\\\{\\}\\emdash\\ldblquote e\\rdblquote"),
              "a\u00A0b\u2011cd\\{}\u2014\u201Ce\u201D/");
}

TEST(RichTextTest, SizesColoursFontsAndFormatsAreKeptAndClamped)
{
    const RichTextDocument document =
        readRichText("{\\rtf1\\deff1{\\fonttbl{\\f0\\fswiss Helvetica{\\*\\falt Arial};}{\\f1 Lato;}\\f7 Open}"
                     "{\\colortbl;\\red1\\green2\\blue300;\\red9;}"
                     "first \\f0\\fs40\\cf1 second \\f9\\fs0\\cf2 third\\cf99\\fs99999999999 fourth\\f7 fifth"
                     "\\qc\\li720\\fi-360\\ri99999999\\sb-5\\sa200\\par\\pard last}");
    ASSERT_EQ(document.paragraphs.size(), 2U);
    const RichTextParagraph& paragraph = document.paragraphs[0];
    ASSERT_EQ(paragraph.runs.size(), 5U);
    const auto font = [&](std::size_t run) { return document.fonts.at(paragraph.runs[run].style.font); };
    EXPECT_EQ(font(0), "Lato");
    EXPECT_EQ(font(1), "Helvetica");
    EXPECT_EQ(font(2), "") << "a font that the table does not have";
    EXPECT_EQ(font(4), "Open") << "the table's last name has no end of its own";
    EXPECT_EQ(paragraph.runs[0].style.halfPoints, 24);
    EXPECT_EQ(paragraph.runs[1].style.halfPoints, 40);
    EXPECT_EQ(paragraph.runs[2].style.halfPoints, 24);
    EXPECT_EQ(paragraph.runs[3].style.halfPoints, 800);
    EXPECT_FALSE(paragraph.runs[0].style.color);
    EXPECT_EQ(paragraph.runs[1].style.color, (RichTextColor{1, 2, 255}));
    EXPECT_EQ(paragraph.runs[2].style.color, (RichTextColor{9, 0, 0}));
    EXPECT_FALSE(paragraph.runs[3].style.color);
    EXPECT_EQ(paragraph.alignment, RichTextAlignment::Center);
    EXPECT_EQ(paragraph.leftIndent, 720);
    EXPECT_EQ(paragraph.firstLineIndent, -360);
    EXPECT_EQ(paragraph.rightIndent, 31680);
    EXPECT_EQ(paragraph.spaceBefore, 0);
    EXPECT_EQ(paragraph.spaceAfter, 200);
    EXPECT_EQ(document.paragraphs[1].leftIndent, 0);
    // The last paragraph has its format although no word ends it.
    EXPECT_EQ(readRichText("{\\rtf1\\qr end}").paragraphs.at(0).alignment, RichTextAlignment::Right);
}

TEST(RichTextTest, CharactersComeAsNumbersBytesAndPairs)
{
    EXPECT_EQ(read("\\u8364?\\u8364 ?\\'80\\'e4x"), "€€€äx/");
    EXPECT_EQ(read("\\u-10179?\\u-8704?"), "\U0001F600/") << "a pair of surrogates";
    EXPECT_EQ(read("\\u-10179?a\\u-8704?b"), "\uFFFDa\uFFFDb/") << "halves of pairs";
    EXPECT_EQ(read("\\uc2\\u233\\'c3\\'a9\\uc0\\u233z{\\uc1\\u233 ab}\\u233 c"), "éézéb"
                                                                                 "é"
                                                                                 "c/");
    EXPECT_EQ(read("\\u233{a}"), "éa/") << "a group is no stand-in";
    EXPECT_EQ(read("\\u233\\b0\\'41"), "éA/") << "a word is one";
    EXPECT_EQ(read("a\\u0?\\'00\\'0a\\'zz\x01"
                   "b"),
              "azzb/")
        << "control characters go";
}

TEST(RichTextTest, ListsKeepTheirMarkers)
{
    EXPECT_EQ(described(readRichText("{\\rtf1{\\fonttbl{\\f0 Lato;}{\\f1\\fcharset2 Symbol;}}"
                                     "{\\listtext\\pard\\f1\\'b7\\tab}\\pard\\f0\\li360 one\\par "
                                     "{\\listtext\\f0 2.\\tab}two\\par three}")),
              "<•>one/<2.>two/three/");
    EXPECT_EQ(read("{\\listtext\\u-3913 ?\\tab}x"), "<•>x/");
}

TEST(RichTextTest, WhatIsNoTextIsPassedOver)
{
    EXPECT_EQ(read("{\\info{\\title T}}{\\*\\generator G {x}}a{\\pict\\bin4 }}}{ 00ff}{\\header h}b"), "ab/");
    EXPECT_EQ(read("{\\field{\\*\\fldinst{HYPERLINK \"x\"}}{\\fldrslt link}}{\\footnote f}"), "link/");
    EXPECT_EQ(read("{\\stylesheet{\\s1 heading;}}a\\unknownword5 b"), "ab/");
    EXPECT_EQ(read("a}b{c"), "a/") << "the text ends with its group";
}

TEST(RichTextTest, DamagedTextIsReadAsFarAsItGoes)
{
    const std::string whole =
        "{\\rtf1{\\fonttbl{\\f0 A;}}{\\colortbl;\\red5;}\\b x\\u233?\\'e9{\\listtext 1}y\\bin2 ab\\par}";
    // From the signature on no cut shows a word or a brace as text.
    for (std::size_t length = 5; length <= whole.size(); ++length) {
        const std::string shown = described(readRichText(whole.substr(0, length)));
        EXPECT_EQ(shown.find_first_of("\\{}"), std::string::npos) << length << shown;
    }
    EXPECT_EQ(described(readRichText("")) + described(readRichText("no rich text")), "");
    EXPECT_EQ(described(readRichText("{\\rtf1 a{\\b b")), "a|b:b/");
    EXPECT_EQ(described(readRichText("{\\rtf1 a\\")), "a/");
    EXPECT_EQ(described(readRichText("{\\rtf1 a\\bin999999999 b}")), "a/");
}

TEST(RichTextTest, LimitsHoldAgainstHostileText)
{
    const auto deep = readRichText("{\\rtf1 a" + std::string(1000000, '{') + "lost" + std::string(1000000, '}') + "b}");
    EXPECT_EQ(described(deep), "ab/");
    EXPECT_TRUE(deep.truncated);

    std::string runs = "{\\rtf1 ";
    std::string fonts = "{\\rtf1{\\fonttbl";
    for (int i = 0; i < 200000; ++i) {
        runs += "\\b x\\b0 y";
        fonts += "\\f" + std::to_string(i) + " F;";
    }
    const auto many = readRichText(runs);
    EXPECT_TRUE(many.truncated);
    ASSERT_EQ(many.paragraphs.size(), 1U);
    EXPECT_EQ(many.paragraphs[0].runs.size(), RichTextLimits::pieces);
    EXPECT_LE(readRichText(fonts).fonts.size(), RichTextLimits::tableEntries);

    const auto large = readRichText("{\\rtf1 " + std::string(2 * RichTextLimits::bytes, 'x') + "}");
    EXPECT_TRUE(large.truncated);
    EXPECT_LT(large.paragraphs.at(0).runs.at(0).text.size(), RichTextLimits::bytes);
    EXPECT_FALSE(readRichText("{\\rtf1 a}").truncated);
}

} // namespace
} // namespace lodestar
