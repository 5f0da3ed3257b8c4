// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichTextReader.h"

#include "Views/About/RichText/RichTextFormat.h"

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

constexpr int longestFallback = 64;
constexpr char32_t bullet = 0x2022;

} // namespace

RichTextDocument RichTextReader::read()
{
    for (RichTextToken token = m_tokens.next(); token.kind != RichTextToken::Kind::End; token = m_tokens.next()) {
        handle(token);
        if (isFull()) {
            m_document.truncated = true;
            break;
        }
        // Whatever follows the text's own group is no part of it.
        if (token.kind == RichTextToken::Kind::GroupClose && m_stack.empty()) {
            break;
        }
    }
    finish();
    return std::move(m_document);
}

void RichTextReader::handle(const RichTextToken& token)
{
    switch (token.kind) {
    case RichTextToken::Kind::GroupOpen:
        openGroup();
        return;
    case RichTextToken::Kind::GroupClose:
        closeGroup();
        return;
    default:
        break;
    }
    if (m_tooDeep > 0 || m_state.destination == Destination::Skipped) {
        return;
    }
    switch (token.kind) {
    case RichTextToken::Kind::Text:
        handleText(token);
        break;
    case RichTextToken::Kind::Byte:
        handleByte(token);
        break;
    case RichTextToken::Kind::Symbol:
        handleSymbol(token.value);
        break;
    case RichTextToken::Kind::Word:
        handleWord(richTextWordNamed(token.text), token);
        break;
    default:
        m_skip = std::max(0, m_skip - 1);
        break;
    }
}

void RichTextReader::openGroup()
{
    m_skip = 0;
    if (m_tooDeep > 0 || m_stack.size() >= RichTextLimits::depth) {
        ++m_tooDeep;
        m_document.truncated = true;
        return;
    }
    m_stack.push_back(m_state);
}

void RichTextReader::closeGroup()
{
    m_skip = 0;
    if (m_tooDeep > 0) {
        --m_tooDeep;
        return;
    }
    if (m_stack.empty()) {
        return;
    }
    flushSurrogate();
    const bool wasFontTable = m_state.destination == Destination::FontTable;
    if (wasFontTable) {
        m_tables.endFontName();
    } else if (m_stack.size() == 1) {
        // The last paragraph has no end of its own, and its format goes with the group.
        endPendingParagraph();
    }
    m_state = std::move(m_stack.back());
    m_stack.pop_back();
    if (wasFontTable && m_state.fontNumber < 0) {
        useFont(m_defaultFont);
    }
}

void RichTextReader::handleText(const RichTextToken& token)
{
    std::string_view text = token.text;
    const std::size_t skipped = std::min(static_cast<std::size_t>(m_skip), text.size());
    m_skip -= static_cast<int>(skipped);
    text.remove_prefix(skipped);
    for (const char each : text) {
        const auto byte = static_cast<std::uint8_t>(each);
        if (byte == '\t' || (byte >= 0x20 && byte != 0x7F)) {
            appendByte(byte);
        }
    }
}

void RichTextReader::handleByte(const RichTextToken& token)
{
    if (m_skip > 0) {
        --m_skip;
    } else if (token.value == '\t' || (token.value >= 0x20 && token.value != 0x7F)) {
        appendByte(static_cast<std::uint8_t>(token.value));
    }
}

void RichTextReader::handleSymbol(int symbol)
{
    if (symbol == '*') {
        // What follows may be passed over by those who do not know it, and nothing that is known here is marked so.
        m_state.destination = Destination::Skipped;
        return;
    }
    if (m_skip > 0) {
        --m_skip;
        return;
    }
    switch (symbol) {
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
    case '\t':
        append(U'\t');
        break;
    case '\r':
    case '\n':
        endParagraph();
        break;
    default:
        break;
    }
}

void RichTextReader::handleWord(const RichTextWord& word, const RichTextToken& token)
{
    if (word.action == RichTextAction::Unicode) {
        m_skip = m_state.unicodeFallback;
        appendUtf16(static_cast<char16_t>(token.value & 0xFFFF));
        return;
    }
    if (m_skip > 0) {
        --m_skip;
        return;
    }
    switch (word.action) {
    case RichTextAction::SkipGroup:
        m_state.destination = Destination::Skipped;
        break;
    case RichTextAction::Character:
        append(word.argument);
        break;
    case RichTextAction::Paragraph:
        endParagraph();
        break;
    case RichTextAction::UnicodeFallback:
        m_state.unicodeFallback = std::clamp(token.value, 0, longestFallback);
        break;
    case RichTextAction::CodePage:
        m_codePage = codePageNumbered(token.value);
        break;
    case RichTextAction::MacCodePage:
        m_codePage = RichTextCodePage::MacRoman;
        break;
    case RichTextAction::OtherCodePage:
        m_codePage = RichTextCodePage::Unknown;
        break;
    default:
        handleStyleWord(word, token);
        handleTableWord(word, token);
        break;
    }
}

void RichTextReader::handleStyleWord(const RichTextWord& word, const RichTextToken& token)
{
    switch (word.action) {
    case RichTextAction::StyleDefaults:
        m_state.style = {};
        m_state.hidden = false;
        useFont(m_defaultFont);
        break;
    case RichTextAction::Hidden:
        m_state.hidden = token.isOn();
        break;
    case RichTextAction::Color:
        m_state.style.color = m_tables.color(token.value);
        break;
    default:
        applyStyleWord(m_state.style, word, token);
        applyParagraphWord(m_state.paragraph, word, token);
        break;
    }
}

void RichTextReader::handleTableWord(const RichTextWord& word, const RichTextToken& token)
{
    switch (word.action) {
    case RichTextAction::FontTable:
        m_state.destination = Destination::FontTable;
        break;
    case RichTextAction::ColorTable:
        m_state.destination = Destination::ColorTable;
        break;
    case RichTextAction::Marker:
        m_state.destination = Destination::Marker;
        break;
    case RichTextAction::Font:
        if (m_state.destination == Destination::FontTable) {
            m_tables.beginFont(token.value);
        } else {
            useFont(token.value);
        }
        break;
    case RichTextAction::DefaultFont:
        m_defaultFont = token.value;
        break;
    case RichTextAction::CharacterSet:
        if (m_state.destination == Destination::FontTable) {
            m_tables.setCharacterSet(token.value);
        }
        break;
    case RichTextAction::Red:
    case RichTextAction::Green:
    case RichTextAction::Blue:
        if (m_state.destination == Destination::ColorTable) {
            m_tables.setColorComponent(word.action, token.value);
        }
        break;
    default:
        break;
    }
}

void RichTextReader::appendByte(std::uint8_t byte)
{
    // A symbol font's characters are drawings at the places of letters, and all that texts draw with them are bullets.
    const bool drawing = byte > 0x20 && m_tables.isSymbolFont(m_state.fontNumber);
    append(drawing ? bullet : characterOfByte(byte, m_codePage));
}

void RichTextReader::appendUtf16(char16_t unit)
{
    if (unit >= 0xD800 && unit < 0xDC00) {
        flushSurrogate();
        m_highSurrogate = unit;
    } else if (unit >= 0xDC00 && unit < 0xE000 && m_highSurrogate != 0) {
        const char32_t high = std::exchange(m_highSurrogate, char16_t(0)) - 0xD800U;
        append(0x10000 + (high << 10U) + (unit - 0xDC00U));
    } else if (unit >= 0xF000 && unit < 0xF100) {
        append(bullet);
    } else {
        append(unit);
    }
}

void RichTextReader::flushSurrogate()
{
    if (std::exchange(m_highSurrogate, char16_t(0)) != 0) {
        append(replacementCharacter);
    }
}

void RichTextReader::append(char32_t character)
{
    flushSurrogate();
    if ((character < 0x20 && character != U'\t' && character != U'\n') || character == 0x7F) {
        return;
    }
    switch (m_state.destination) {
    case Destination::Body:
        if (!m_state.hidden) {
            appendCharacter(runText(), character);
        }
        break;
    case Destination::Marker:
        if (m_paragraph.marker.empty()) {
            m_paragraph.markerStyle = m_state.style;
        }
        appendCharacter(m_paragraph.marker, character);
        break;
    case Destination::FontTable:
        m_tables.appendToFontName(character);
        break;
    case Destination::ColorTable:
        m_tables.appendToColors(character);
        break;
    case Destination::Skipped:
        break;
    }
}

std::string& RichTextReader::runText()
{
    if (m_paragraph.runs.empty() || m_paragraph.runs.back().style != m_state.style) {
        m_paragraph.runs.push_back({{}, m_state.style});
        ++m_pieces;
    }
    return m_paragraph.runs.back().text;
}

void RichTextReader::useFont(int number)
{
    m_state.fontNumber = number;
    m_state.style.font = m_tables.font(number);
}

void RichTextReader::endParagraph()
{
    if (m_state.destination != Destination::Body) {
        return;
    }
    flushSurrogate();
    RichTextParagraph paragraph = m_state.paragraph;
    paragraph.marker = trimmedText(m_paragraph.marker);
    paragraph.markerStyle = m_paragraph.markerStyle;
    paragraph.runs = std::move(m_paragraph.runs);
    m_document.paragraphs.push_back(std::move(paragraph));
    m_paragraph = {};
    ++m_pieces;
}

void RichTextReader::endPendingParagraph()
{
    if (!m_paragraph.runs.empty() || !trimmedText(m_paragraph.marker).empty()) {
        endParagraph();
    }
}

void RichTextReader::finish()
{
    // Cut off: what was under way is shown in its format.
    m_state.destination = Destination::Body;
    flushSurrogate();
    endPendingParagraph();
    m_document.fonts = m_tables.takeFontNames();
}

} // namespace lodestar
