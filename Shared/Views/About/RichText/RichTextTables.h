// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/About/RichText/RichText.h"
#include "Views/About/RichText/RichTextWords.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace lodestar
{

/// The fonts and the colours that a text declares at its head and names by number further on. Both are read as they
/// come and hold at most `RichTextLimits::tableEntries` entries; what is beyond is passed over.
class RichTextTables
{
public:
    /// The font whose name follows, until a semicolon, the next font or the end of the table.
    void beginFont(int number);
    void setCharacterSet(int characterSet);
    void appendToFontName(char32_t character);
    void endFontName();

    void setColorComponent(RichTextAction component, int value);
    /// A semicolon ends an entry; one without components is the reader's own text colour.
    void appendToColors(char32_t character);

    /// Where the font stands among the names; the first, the reader's own font, for an unknown number.
    std::size_t font(int number) const;
    bool isSymbolFont(int number) const { return m_symbolFonts.count(number) > 0; }
    /// Nothing for an unknown number and for the text colour.
    std::optional<RichTextColor> color(int number) const;
    std::vector<std::string> takeFontNames() { return std::move(m_fontNames); }

private:
    std::vector<std::string> m_fontNames{std::string()}; ///< the first is the reader's own font
    std::map<int, std::size_t> m_fonts;                  ///< number -> index
    std::set<int> m_symbolFonts;
    int m_font = -1; ///< whose name is being read
    std::string m_fontName;
    std::vector<std::optional<RichTextColor>> m_colors;
    std::optional<RichTextColor> m_color;
};

} // namespace lodestar
