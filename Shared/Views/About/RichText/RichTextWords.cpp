// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichTextWords.h"

#include "Views/About/RichText/RichText.h"

#include <algorithm>
#include <iterator>

namespace lodestar
{
namespace
{

using Action = RichTextAction;

// In the order of their names. Words that change nothing here, and they are most, are not listed.
constexpr RichTextWord words[] = {{"annotation", Action::SkipGroup},
                                  {"ansicpg", Action::CodePage},
                                  {"atnauthor", Action::SkipGroup},
                                  {"atndate", Action::SkipGroup},
                                  {"atnid", Action::SkipGroup},
                                  {"atnref", Action::SkipGroup},
                                  {"b", Action::Bold},
                                  {"bkmkend", Action::SkipGroup},
                                  {"bkmkstart", Action::SkipGroup},
                                  {"blue", Action::Blue},
                                  {"bullet", Action::Character, 0x2022},
                                  {"buptim", Action::SkipGroup},
                                  {"cell", Action::Character, U'\t'},
                                  {"cf", Action::Color},
                                  {"colorschememapping", Action::SkipGroup},
                                  {"colortbl", Action::ColorTable},
                                  {"comment", Action::SkipGroup},
                                  {"creatim", Action::SkipGroup},
                                  {"datafield", Action::SkipGroup},
                                  {"datastore", Action::SkipGroup},
                                  {"deff", Action::DefaultFont},
                                  {"do", Action::SkipGroup},
                                  {"emdash", Action::Character, 0x2014},
                                  {"emspace", Action::Character, 0x2003},
                                  {"endash", Action::Character, 0x2013},
                                  {"enspace", Action::Character, 0x2002},
                                  {"f", Action::Font},
                                  {"factoidname", Action::SkipGroup},
                                  {"fcharset", Action::CharacterSet},
                                  {"fi", Action::FirstLineIndent},
                                  {"filetbl", Action::SkipGroup},
                                  {"fldinst", Action::SkipGroup},
                                  {"fontemb", Action::SkipGroup},
                                  {"fonttbl", Action::FontTable},
                                  {"footer", Action::SkipGroup},
                                  {"footerf", Action::SkipGroup},
                                  {"footerl", Action::SkipGroup},
                                  {"footerr", Action::SkipGroup},
                                  {"footnote", Action::SkipGroup},
                                  {"fs", Action::Size},
                                  {"ftncn", Action::SkipGroup},
                                  {"ftnsep", Action::SkipGroup},
                                  {"ftnsepc", Action::SkipGroup},
                                  {"generator", Action::SkipGroup},
                                  {"green", Action::Green},
                                  {"header", Action::SkipGroup},
                                  {"headerf", Action::SkipGroup},
                                  {"headerl", Action::SkipGroup},
                                  {"headerr", Action::SkipGroup},
                                  {"i", Action::Italic},
                                  {"info", Action::SkipGroup},
                                  {"latentstyles", Action::SkipGroup},
                                  {"ldblquote", Action::Character, 0x201C},
                                  {"li", Action::LeftIndent},
                                  {"line", Action::Character, U'\n'},
                                  {"listoverridetable", Action::SkipGroup},
                                  {"listpicture", Action::SkipGroup},
                                  {"listtable", Action::SkipGroup},
                                  {"listtext", Action::Marker},
                                  {"lquote", Action::Character, 0x2018},
                                  {"mac", Action::MacCodePage},
                                  {"mmathPr", Action::SkipGroup},
                                  {"nonshppict", Action::SkipGroup},
                                  {"object", Action::SkipGroup},
                                  {"page", Action::Paragraph},
                                  {"par", Action::Paragraph},
                                  {"pard", Action::ParagraphDefaults},
                                  {"pc", Action::OtherCodePage},
                                  {"pca", Action::OtherCodePage},
                                  {"pict", Action::SkipGroup},
                                  {"plain", Action::StyleDefaults},
                                  {"pn", Action::SkipGroup},
                                  {"pntext", Action::Marker},
                                  {"pntxta", Action::SkipGroup},
                                  {"pntxtb", Action::SkipGroup},
                                  {"printim", Action::SkipGroup},
                                  {"private", Action::SkipGroup},
                                  {"qc", Action::Align, static_cast<char32_t>(RichTextAlignment::Center)},
                                  {"qj", Action::Align, static_cast<char32_t>(RichTextAlignment::Justified)},
                                  {"ql", Action::Align, static_cast<char32_t>(RichTextAlignment::Left)},
                                  {"qmspace", Action::Character, 0x2005},
                                  {"qr", Action::Align, static_cast<char32_t>(RichTextAlignment::Right)},
                                  {"rdblquote", Action::Character, 0x201D},
                                  {"red", Action::Red},
                                  {"revtbl", Action::SkipGroup},
                                  {"revtim", Action::SkipGroup},
                                  {"ri", Action::RightIndent},
                                  {"row", Action::Paragraph},
                                  {"rquote", Action::Character, 0x2019},
                                  {"rsidtbl", Action::SkipGroup},
                                  {"rxe", Action::SkipGroup},
                                  {"sa", Action::SpaceAfter},
                                  {"sb", Action::SpaceBefore},
                                  {"sect", Action::Paragraph},
                                  {"shpinst", Action::SkipGroup},
                                  {"shppict", Action::SkipGroup},
                                  {"stylesheet", Action::SkipGroup},
                                  {"tab", Action::Character, U'\t'},
                                  {"tc", Action::SkipGroup},
                                  {"template", Action::SkipGroup},
                                  {"themedata", Action::SkipGroup},
                                  {"title", Action::SkipGroup},
                                  {"txe", Action::SkipGroup},
                                  {"u", Action::Unicode},
                                  {"uc", Action::UnicodeFallback},
                                  {"ul", Action::Underline},
                                  {"uld", Action::Underline},
                                  {"uldash", Action::Underline},
                                  {"uldb", Action::Underline},
                                  {"ulnone", Action::NoUnderline},
                                  {"ulth", Action::Underline},
                                  {"ulw", Action::Underline},
                                  {"ulwave", Action::Underline},
                                  {"userprops", Action::SkipGroup},
                                  {"v", Action::Hidden},
                                  {"wgrffmtfilter", Action::SkipGroup},
                                  {"xe", Action::SkipGroup},
                                  {"xmlnstbl", Action::SkipGroup}};

constexpr bool isBefore(const RichTextWord& word, std::string_view name)
{
    return word.name < name;
}

static_assert(std::is_sorted(std::begin(words), std::end(words),
                             [](const RichTextWord& a, const RichTextWord& b) { return a.name < b.name; }));

} // namespace

const RichTextWord& richTextWordNamed(std::string_view name)
{
    static constexpr RichTextWord unknown;
    const auto* const found = std::lower_bound(std::begin(words), std::end(words), name, &isBefore);
    return found != std::end(words) && found->name == name ? *found : unknown;
}

} // namespace lodestar
