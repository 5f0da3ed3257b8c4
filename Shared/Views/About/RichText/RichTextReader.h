// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/About/RichText/RichText.h"
#include "Views/About/RichText/RichTextCharacters.h"
#include "Views/About/RichText/RichTextTables.h"
#include "Views/About/RichText/RichTextTokens.h"
#include "Views/About/RichText/RichTextWords.h"

namespace lodestar
{

/// Turns the tokens of one rich text into a document. One reader a text.
class RichTextReader
{
public:
    explicit RichTextReader(std::string_view bytes) : m_tokens(bytes) {}
    RichTextDocument read();

private:
    enum class Destination { Body, Marker, FontTable, ColorTable, Skipped };

    /// What a group inherits and its end gives back.
    struct State {
        Destination destination = Destination::Body;
        RichTextStyle style{};
        RichTextParagraph paragraph{}; ///< the format alone
        int fontNumber = -1;
        bool hidden = false;
        int unicodeFallback = 1; ///< characters that stand in for one written as a number
    };

    bool isFull() const { return m_pieces >= RichTextLimits::pieces; }
    void openGroup();
    void closeGroup();
    void handle(const RichTextToken& token);
    void handleText(const RichTextToken& token);
    void handleByte(const RichTextToken& token);
    void handleSymbol(int symbol);
    void handleWord(const RichTextWord& word, const RichTextToken& token);
    void handleStyleWord(const RichTextWord& word, const RichTextToken& token);
    void handleTableWord(const RichTextWord& word, const RichTextToken& token);

    void appendByte(std::uint8_t byte);
    void appendUtf16(char16_t unit);
    void append(char32_t character);
    void flushSurrogate();
    std::string& runText();
    void useFont(int number);
    void endParagraph();
    void endPendingParagraph();
    void finish();

    RichTextTokens m_tokens;
    RichTextDocument m_document;
    State m_state;
    std::vector<State> m_stack;
    std::size_t m_tooDeep = 0;
    RichTextParagraph m_paragraph;
    std::size_t m_pieces = 0;
    int m_skip = 0; ///< stand-ins still to be passed over
    char16_t m_highSurrogate = 0;
    RichTextCodePage m_codePage = RichTextCodePage::Windows1252;
    int m_defaultFont = -1;
    RichTextTables m_tables;
};

} // namespace lodestar
