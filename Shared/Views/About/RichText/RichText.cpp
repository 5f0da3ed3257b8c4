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
constexpr utf8proc_int32_t replacement = 0xFFFD;

// Characters of the bytes 0x80 to 0x9F; from 0xA0 on, the code page equals Latin 1.
constexpr std::array<char16_t, 32> windows1252 = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                                  0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

void appendCharacter(std::string& text, char32_t character)
{
    std::array<utf8proc_uint8_t, 4> bytes{};
    const auto letter = static_cast<utf8proc_int32_t>(character);
    const auto length = utf8proc_encode_char(utf8proc_codepoint_valid(letter) ? letter : replacement, bytes.data());
    text.append(bytes.begin(), bytes.begin() + length);
}

std::string trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t\n");
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

class Reader
{
public:
    explicit Reader(std::string_view bytes) : m_tokens(bytes) {}
    std::vector<RichTextParagraph> read();

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
    template <Destination destination>
    static void goesTo(Reader& reader, int /*value*/)
    {
        reader.m_state.destination = destination;
    }
    template <char32_t character>
    static void appends(Reader& reader, int /*value*/)
    {
        reader.append(character);
    }
    template <int RichTextParagraph::*length, int least = -longestLength>
    static void measures(Reader& reader, int value)
    {
        reader.m_state.paragraph.*length = std::clamp(value, least, longestLength);
    }
    template <bool RichTextStyle::*look>
    static void turns(Reader& reader, int value)
    {
        reader.m_state.style.*look = value != 0;
    }
    template <std::uint8_t RichTextColor::*part>
    static void mixes(Reader& reader, int value)
    {
        RichTextColor color = reader.m_color.value_or(RichTextColor());
        color.*part = static_cast<std::uint8_t>(std::clamp(value, 0, 255));
        reader.m_color = color;
    }

    bool isWithinLimits() const
    {
        return m_pieces < RichTextLimits::pieces && m_groups.size() <= RichTextLimits::depth;
    }
    void closeGroup();
    void handle(const RichTextToken& token);
    void handleSymbol(int symbol);
    void appendByte(int byte);
    void append(char32_t character);
    void endParagraph();

    RichTextTokens m_tokens;
    std::vector<RichTextParagraph> m_paragraphs;
    State m_state;
    std::vector<State> m_groups;
    RichTextParagraph m_paragraph; ///< runs and marker of the paragraph that is being read
    std::size_t m_pieces = 0;
    int m_skip = 0; ///< fallback characters still to be skipped
    int m_defaultFont = -1;
    std::set<int> m_symbolFonts;
    std::vector<std::optional<RichTextColor>> m_colors;
    std::optional<RichTextColor> m_color;
};

const std::map<std::string_view, Reader::Action>& Reader::actions()
{
    static const std::map<std::string_view, Action> actions = {
        {"fonttbl", &goesTo<Destination::FontTable>},
        {"colortbl", &goesTo<Destination::ColorTable>},
        {"listtext", &goesTo<Destination::Marker>},
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
        {"fi", &measures<&RichTextParagraph::firstLineIndent>},
        {"li", &measures<&RichTextParagraph::leftIndent>},
        {"sa", &measures<&RichTextParagraph::spaceAfter, 0>},
        {"sb", &measures<&RichTextParagraph::spaceBefore, 0>},
        {"par", [](Reader& reader, int) { reader.endParagraph(); }},
        {"pard", [](Reader& reader, int) { reader.m_state.paragraph = {}; }},
        {"plain",
         [](Reader& reader, int) {
             reader.m_state.style = {};
             reader.m_state.font = reader.m_defaultFont;
         }},
        {"b", &turns<&RichTextStyle::bold>},
        {"i", &turns<&RichTextStyle::italic>},
        {"ul", &turns<&RichTextStyle::underline>},
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
        {"red", &mixes<&RichTextColor::red>},
        {"green", &mixes<&RichTextColor::green>},
        {"blue", &mixes<&RichTextColor::blue>},
        {"deff", [](Reader& reader, int value) { reader.m_defaultFont = reader.m_state.font = value; }},
        {"f", [](Reader& reader, int value) { reader.m_state.font = value; }},
        {"fcharset",
         [](Reader& reader, int value) {
             if (value == symbolCharacterSet && reader.m_symbolFonts.size() < RichTextLimits::tableEntries) {
                 reader.m_symbolFonts.insert(reader.m_state.font);
             }
         }},
        {"uc", [](Reader& reader, int value) { reader.m_state.fallback = std::clamp(value, 0, longestFallback); }},
    };
    return actions;
}

std::vector<RichTextParagraph> Reader::read()
{
    for (RichTextToken token = m_tokens.next(); token.kind != RichTextToken::Kind::End && isWithinLimits();
         token = m_tokens.next()) {
        handle(token);
        // Bytes after the end of the text's own group do not belong to the text.
        if (token.kind == RichTextToken::Kind::GroupClose && m_groups.empty()) {
            break;
        }
    }
    // Where the text was cut off, the unfinished paragraph is kept in its format.
    m_state.destination = Destination::Body;
    if (!m_paragraph.runs.empty() || !trimmed(m_paragraph.marker).empty()) {
        endParagraph();
    }
    return std::move(m_paragraphs);
}

void Reader::handle(const RichTextToken& token)
{
    using Kind = RichTextToken::Kind;
    if (token.kind == Kind::GroupOpen) {
        m_skip = 0;
        m_groups.push_back(m_state);
    } else if (token.kind == Kind::GroupClose) {
        closeGroup();
    } else if (m_state.destination == Destination::Skipped) {
        return;
    } else if (token.kind == Kind::Text) {
        const std::size_t skipped = std::min(static_cast<std::size_t>(m_skip), token.text.size());
        m_skip -= static_cast<int>(skipped);
        for (const char each : token.text.substr(skipped)) {
            appendByte(static_cast<std::uint8_t>(each));
        }
    } else if (token.kind == Kind::Word && token.text == "u") {
        m_skip = m_state.fallback;
        const auto unit = static_cast<char16_t>(token.value & 0xFFFF);
        append(unit >= 0xF000 && unit < 0xF100 ? bullet : unit);
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

void Reader::closeGroup()
{
    m_skip = 0;
    if (m_groups.empty()) {
        return;
    }
    if (m_groups.size() == 1) {
        // The last paragraph keeps the format of its group, which ends here.
        m_groups.back().paragraph = m_state.paragraph;
    }
    m_state = std::move(m_groups.back());
    m_groups.pop_back();
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

void Reader::append(char32_t character)
{
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
        appendCharacter(m_paragraph.marker, character);
        break;
    case Destination::ColorTable:
        if (character == U';' && m_colors.size() < RichTextLimits::tableEntries) {
            m_colors.push_back(std::exchange(m_color, std::nullopt));
        }
        break;
    case Destination::FontTable:
    case Destination::Skipped:
        break;
    }
}

void Reader::endParagraph()
{
    if (m_state.destination != Destination::Body) {
        return;
    }
    RichTextParagraph paragraph = m_state.paragraph;
    paragraph.marker = trimmed(m_paragraph.marker);
    paragraph.runs = std::move(m_paragraph.runs);
    m_paragraphs.push_back(std::move(paragraph));
    m_paragraph = {};
    ++m_pieces;
}

} // namespace

std::vector<RichTextParagraph> readRichText(std::string_view bytes)
{
    return bytes.starts_with("{\\rtf") ? Reader(bytes.substr(0, RichTextLimits::bytes)).read()
                                       : std::vector<RichTextParagraph>();
}

} // namespace lodestar
