// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichText.h"

#include "Views/About/RichText/RichTextTokens.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utf8proc.h>
#include <utility>

namespace lodestar
{
namespace
{

constexpr int longestLength = 31680; ///< twentieths of a point
constexpr int largestSize = 800;     ///< half points
constexpr int longestFallback = 64;
constexpr int symbolCharacterSet = 2;
constexpr char32_t bullet = 0x2022;
constexpr char16_t replacement = 0xFFFD;

// Characters of the bytes 0x80 to 0x9F; from 0xA0 on, the code page equals Latin 1.
constexpr std::array<char16_t, 32> windows1252 = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                                  0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

void appendCharacter(std::string& text, char32_t character)
{
    std::array<utf8proc_uint8_t, 4> bytes{};
    const auto letter = static_cast<utf8proc_int32_t>(character);
    const auto length =
        utf8proc_encode_char(utf8proc_codepoint_valid(letter) ? letter : utf8proc_int32_t{replacement}, bytes.data());
    text.append(bytes.begin(), bytes.begin() + length);
}

std::string trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t\n");
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

int length(int value)
{
    return std::clamp(value, -longestLength, longestLength);
}

class Reader
{
public:
    explicit Reader(std::string_view bytes) : m_tokens(bytes) {}
    RichTextDocument read();

private:
    enum class Destination { Body, Marker, FontTable, ColorTable, Skipped };
    /// The state that a group inherits and that its end restores.
    struct State {
        Destination destination = Destination::Body;
        RichTextStyle style{};
        RichTextParagraph paragraph{}; ///< format only, no text
        int font = -1;                 ///< the font's number in the text
        int fallback = 1;              ///< number of fallback characters after a character written as a number
    };
    /// The handler of a control word; the number is the word's parameter.
    using Action = void (*)(Reader&, int);
    static const std::map<std::string_view, Action>& actions();
    template <char32_t character>
    static void appends(Reader& reader, int /*value*/)
    {
        reader.append(character);
    }
    template <RichTextAlignment alignment>
    static void aligns(Reader& reader, int /*value*/)
    {
        reader.m_state.paragraph.alignment = alignment;
    }
    template <Destination destination>
    static void goesTo(Reader& reader, int /*value*/)
    {
        reader.m_state.destination = destination;
    }

    void openGroup();
    void closeGroup();
    void handle(const RichTextToken& token);
    void handleSymbol(int symbol);
    void appendByte(int byte);
    void appendUnit(char16_t unit);
    void append(char32_t character);
    void flushSurrogate();
    void endParagraph();
    void useFont(int number);
    void nameFont(char32_t character);
    void endFontName();

    RichTextTokens m_tokens;
    RichTextDocument m_document;
    State m_state;
    std::vector<State> m_groups;
    std::size_t m_tooDeep = 0;
    RichTextParagraph m_paragraph; ///< runs and marker of the paragraph that is being read
    std::size_t m_pieces = 0;
    int m_skip = 0; ///< fallback characters still to be skipped
    char16_t m_highSurrogate = 0;
    int m_defaultFont = -1;
    std::map<int, std::size_t> m_fonts; ///< from font numbers in the text to indexes into the document's fonts
    std::set<int> m_symbolFonts;
    int m_namedFont = -1;
    std::string m_fontName;
    std::vector<std::optional<RichTextColor>> m_colors;
    std::optional<RichTextColor> m_color;
};

const std::map<std::string_view, Reader::Action>& Reader::actions()
{
    static const auto component = [](Reader& reader, std::uint8_t RichTextColor::*part, int value) {
        RichTextColor color = reader.m_color.value_or(RichTextColor());
        color.*part = static_cast<std::uint8_t>(std::clamp(value, 0, 255));
        reader.m_color = color;
    };
    static const std::map<std::string_view, Action> actions = {
        {"fonttbl", &goesTo<Destination::FontTable>},
        {"colortbl", &goesTo<Destination::ColorTable>},
        {"listtext", &goesTo<Destination::Marker>},
        {"fldinst", &goesTo<Destination::Skipped>},
        {"footer", &goesTo<Destination::Skipped>},
        {"footnote", &goesTo<Destination::Skipped>},
        {"header", &goesTo<Destination::Skipped>},
        {"info", &goesTo<Destination::Skipped>},
        {"pict", &goesTo<Destination::Skipped>},
        {"stylesheet", &goesTo<Destination::Skipped>},
        {"bullet", &appends<bullet>},
        {"emdash", &appends<0x2014>},
        {"endash", &appends<0x2013>},
        {"ldblquote", &appends<0x201C>},
        {"line", &appends<U'\n'>},
        {"lquote", &appends<0x2018>},
        {"rdblquote", &appends<0x201D>},
        {"rquote", &appends<0x2019>},
        {"tab", &appends<U'\t'>},
        {"qc", &aligns<RichTextAlignment::Center>},
        {"qj", &aligns<RichTextAlignment::Justified>},
        {"ql", &aligns<RichTextAlignment::Left>},
        {"qr", &aligns<RichTextAlignment::Right>},
        {"fi", [](Reader& reader, int value) { reader.m_state.paragraph.firstLineIndent = length(value); }},
        {"li", [](Reader& reader, int value) { reader.m_state.paragraph.leftIndent = length(value); }},
        {"ri", [](Reader& reader, int value) { reader.m_state.paragraph.rightIndent = length(value); }},
        {"sa", [](Reader& reader, int value) { reader.m_state.paragraph.spaceAfter = length(std::max(0, value)); }},
        {"sb", [](Reader& reader, int value) { reader.m_state.paragraph.spaceBefore = length(std::max(0, value)); }},
        {"par", [](Reader& reader, int) { reader.endParagraph(); }},
        {"pard", [](Reader& reader, int) { reader.m_state.paragraph = {}; }},
        {"plain",
         [](Reader& reader, int) {
             reader.m_state.style = {};
             reader.useFont(reader.m_defaultFont);
         }},
        {"b", [](Reader& reader, int value) { reader.m_state.style.bold = value != 0; }},
        {"i", [](Reader& reader, int value) { reader.m_state.style.italic = value != 0; }},
        {"ul", [](Reader& reader, int value) { reader.m_state.style.underline = value != 0; }},
        {"ulnone", [](Reader& reader, int) { reader.m_state.style.underline = false; }},
        {"fs",
         [](Reader& reader, int value) {
             reader.m_state.style.halfPoints = value > 0 ? std::min(value, largestSize) : RichTextStyle().halfPoints;
         }},
        {"cf",
         [](Reader& reader, int value) {
             const auto index = static_cast<std::size_t>(std::max(0, value));
             reader.m_state.style.color = index < reader.m_colors.size() ? reader.m_colors[index] : std::nullopt;
         }},
        {"red", [](Reader& reader, int value) { component(reader, &RichTextColor::red, value); }},
        {"green", [](Reader& reader, int value) { component(reader, &RichTextColor::green, value); }},
        {"blue", [](Reader& reader, int value) { component(reader, &RichTextColor::blue, value); }},
        {"deff", [](Reader& reader, int value) { reader.m_defaultFont = value; }},
        {"f", [](Reader& reader, int value) { reader.useFont(value); }},
        {"fcharset",
         [](Reader& reader, int value) {
             if (value == symbolCharacterSet && reader.m_symbolFonts.size() < RichTextLimits::tableEntries) {
                 reader.m_symbolFonts.insert(reader.m_namedFont);
             }
         }},
        {"uc", [](Reader& reader, int value) { reader.m_state.fallback = std::clamp(value, 0, longestFallback); }},
    };
    return actions;
}

RichTextDocument Reader::read()
{
    for (RichTextToken token = m_tokens.next(); token.kind != RichTextToken::Kind::End; token = m_tokens.next()) {
        handle(token);
        m_document.truncated = m_document.truncated || m_pieces >= RichTextLimits::pieces;
        // Bytes after the end of the text's own group do not belong to the text.
        if (m_pieces >= RichTextLimits::pieces || (token.kind == RichTextToken::Kind::GroupClose && m_groups.empty())) {
            break;
        }
    }
    // Where the text was cut off, the unfinished paragraph is kept in its format.
    m_state.destination = Destination::Body;
    flushSurrogate();
    if (!m_paragraph.runs.empty() || !trimmed(m_paragraph.marker).empty()) {
        endParagraph();
    }
    return std::move(m_document);
}

void Reader::handle(const RichTextToken& token)
{
    using Kind = RichTextToken::Kind;
    if (token.kind == Kind::GroupOpen) {
        openGroup();
    } else if (token.kind == Kind::GroupClose) {
        closeGroup();
    } else if (m_tooDeep > 0 || m_state.destination == Destination::Skipped) {
        return;
    } else if (token.kind == Kind::Text) {
        const std::size_t skipped = std::min(static_cast<std::size_t>(m_skip), token.text.size());
        m_skip -= static_cast<int>(skipped);
        for (const char each : token.text.substr(skipped)) {
            appendByte(static_cast<std::uint8_t>(each));
        }
    } else if (token.kind == Kind::Word && token.text == "u") {
        m_skip = m_state.fallback;
        appendUnit(static_cast<char16_t>(token.value & 0xFFFF));
    } else if (m_skip > 0) {
        --m_skip;
    } else if (token.kind == Kind::Byte) {
        appendByte(token.value);
    } else if (token.kind == Kind::Symbol) {
        handleSymbol(token.value);
    } else if (const auto found = actions().find(token.text); found != actions().end()) {
        found->second(*this, token.value);
    }
}

void Reader::openGroup()
{
    m_skip = 0;
    if (m_tooDeep > 0 || m_groups.size() >= RichTextLimits::depth) {
        ++m_tooDeep;
        m_document.truncated = true;
        return;
    }
    m_groups.push_back(m_state);
}

void Reader::closeGroup()
{
    m_skip = 0;
    if (m_tooDeep > 0) {
        --m_tooDeep;
        return;
    }
    if (m_groups.empty()) {
        return;
    }
    flushSurrogate();
    if (m_state.destination == Destination::FontTable) {
        endFontName();
    } else if (m_groups.size() == 1) {
        // The last paragraph keeps the format of its group, which ends here.
        m_groups.back().paragraph = m_state.paragraph;
    }
    m_state = std::move(m_groups.back());
    m_groups.pop_back();
    if (m_state.font < 0) {
        useFont(m_defaultFont);
    }
}

void Reader::handleSymbol(int symbol)
{
    switch (symbol) {
    case '*':
        // The mark says that readers may skip the group if they do not know its word; all groups known here have no
        // such mark.
        m_state.destination = Destination::Skipped;
        break;
    case '\\':
    case '{':
    case '}':
        append(static_cast<char32_t>(symbol));
        break;
    case '~':
        append(0xA0);
        break;
    case '_':
        append(0x2011);
        break;
    case '\r':
    case '\n':
        endParagraph();
        break;
    default:
        break;
    }
}

void Reader::appendByte(int byte)
{
    const auto character = static_cast<char32_t>(byte);
    if (character == '\n') {
        return;
    }
    // Symbol fonts have pictures in the places of letters. All such pictures become bullets, because texts use them
    // only for bullets.
    if (character > 0x20 && m_symbolFonts.contains(m_state.font)) {
        append(bullet);
    } else {
        append(character >= 0x80 && character < 0xA0 ? windows1252[character - 0x80U] : character);
    }
}

void Reader::appendUnit(char16_t unit)
{
    if (unit >= 0xD800 && unit < 0xDC00) {
        flushSurrogate();
        m_highSurrogate = unit;
    } else if (unit >= 0xDC00 && unit < 0xE000 && m_highSurrogate != 0) {
        const char32_t high = std::exchange(m_highSurrogate, char16_t(0)) - 0xD800U;
        append(0x10000 + (high << 10U) + (unit - 0xDC00U));
    } else {
        append(unit >= 0xF000 && unit < 0xF100 ? bullet : unit);
    }
}

void Reader::flushSurrogate()
{
    if (std::exchange(m_highSurrogate, char16_t(0)) != 0) {
        append(replacement);
    }
}

void Reader::append(char32_t character)
{
    flushSurrogate();
    if ((character < 0x20 && character != U'\t' && character != U'\n') || character == 0x7F) {
        return;
    }
    switch (m_state.destination) {
    case Destination::Body:
        if (m_paragraph.runs.empty() || m_paragraph.runs.back().style != m_state.style) {
            m_paragraph.runs.push_back({{}, m_state.style});
            ++m_pieces;
        }
        appendCharacter(m_paragraph.runs.back().text, character);
        break;
    case Destination::Marker:
        if (m_paragraph.marker.empty()) {
            m_paragraph.markerStyle = m_state.style;
        }
        appendCharacter(m_paragraph.marker, character);
        break;
    case Destination::FontTable:
        nameFont(character);
        break;
    case Destination::ColorTable:
        if (character == U';' && m_colors.size() < RichTextLimits::tableEntries) {
            m_colors.push_back(std::exchange(m_color, std::nullopt));
        }
        break;
    case Destination::Skipped:
        break;
    }
}

void Reader::endParagraph()
{
    if (m_state.destination != Destination::Body) {
        return;
    }
    flushSurrogate();
    RichTextParagraph paragraph = m_state.paragraph;
    paragraph.marker = trimmed(m_paragraph.marker);
    paragraph.markerStyle = m_paragraph.markerStyle;
    paragraph.runs = std::move(m_paragraph.runs);
    m_document.paragraphs.push_back(std::move(paragraph));
    m_paragraph = {};
    ++m_pieces;
}

void Reader::useFont(int number)
{
    if (m_state.destination == Destination::FontTable) {
        endFontName();
        m_namedFont = number;
        return;
    }
    const auto found = m_fonts.find(number);
    m_state.font = number;
    m_state.style.font = found != m_fonts.end() ? found->second : 0;
}

void Reader::nameFont(char32_t character)
{
    constexpr std::size_t longestName = 128;
    if (character == U';') {
        endFontName();
    } else if (m_fontName.size() < longestName) {
        appendCharacter(m_fontName, character);
    }
}

void Reader::endFontName()
{
    std::string name = trimmed(std::exchange(m_fontName, {}));
    const int number = std::exchange(m_namedFont, -1);
    if (!name.empty() && number >= 0 && m_document.fonts.size() < RichTextLimits::tableEntries) {
        m_fonts[number] = m_document.fonts.size();
        m_document.fonts.push_back(std::move(name));
    }
}

} // namespace

RichTextDocument readRichText(std::string_view bytes)
{
    if (!bytes.starts_with("{\\rtf")) {
        return {};
    }
    RichTextDocument document = Reader(bytes.substr(0, RichTextLimits::bytes)).read();
    document.truncated = document.truncated || bytes.size() > RichTextLimits::bytes;
    return document;
}

} // namespace lodestar
