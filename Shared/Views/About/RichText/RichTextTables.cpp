// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichTextTables.h"

#include "Views/About/RichText/RichTextCharacters.h"

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

constexpr int symbolCharacterSet = 2;

} // namespace

void RichTextTables::beginFont(int number)
{
    endFontName();
    m_font = number;
}

void RichTextTables::setCharacterSet(int characterSet)
{
    if (characterSet == symbolCharacterSet && m_symbolFonts.size() < RichTextLimits::tableEntries) {
        m_symbolFonts.insert(m_font);
    }
}

void RichTextTables::appendToFontName(char32_t character)
{
    if (character == U';') {
        endFontName();
    } else if (m_fontName.size() < RichTextLimits::fontName) {
        appendCharacter(m_fontName, character);
    }
}

void RichTextTables::endFontName()
{
    std::string name = trimmedText(std::exchange(m_fontName, {}));
    const int number = std::exchange(m_font, -1);
    if (!name.empty() && number >= 0 && m_fontNames.size() < RichTextLimits::tableEntries) {
        m_fonts[number] = m_fontNames.size();
        m_fontNames.push_back(std::move(name));
    }
}

void RichTextTables::setColorComponent(RichTextAction component, int value)
{
    RichTextColor color = m_color.value_or(RichTextColor());
    (component == RichTextAction::Red     ? color.red
     : component == RichTextAction::Green ? color.green
                                          : color.blue) = static_cast<std::uint8_t>(std::clamp(value, 0, 255));
    m_color = color;
}

void RichTextTables::appendToColors(char32_t character)
{
    if (character != U';') {
        return;
    }
    if (m_colors.size() < RichTextLimits::tableEntries) {
        m_colors.push_back(m_color);
    }
    m_color.reset();
}

std::size_t RichTextTables::font(int number) const
{
    const auto found = m_fonts.find(number);
    return found != m_fonts.end() ? found->second : 0;
}

std::optional<RichTextColor> RichTextTables::color(int number) const
{
    const auto index = static_cast<std::size_t>(std::max(0, number));
    return index < m_colors.size() ? m_colors[index] : std::nullopt;
}

} // namespace lodestar
