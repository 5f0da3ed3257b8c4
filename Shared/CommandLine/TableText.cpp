// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/TableText.h"

#include "CommandLine/PlainText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <numeric>

namespace lodestar
{
namespace
{

using Cells = std::vector<std::string>;
constexpr std::size_t gap = 2;          ///< between columns
constexpr std::size_t narrowest = 8;    ///< a value of fewer below its label tells nothing
constexpr std::size_t mostPadded = 120; ///< where nothing limits a line, one long cell must not widen all rows
constexpr std::size_t anything = std::numeric_limits<std::size_t>::max() / 2; ///< columns of such a line

std::size_t lineOf(const Terminal& terminal)
{
    return terminal.width > 0 ? terminal.width : anything;
}

/// Titles are words joined by underscores, for scripts.
std::string titleText(std::string_view title)
{
    std::string text(title);
    std::ranges::replace(text, '_', ' ');
    return text;
}

Cells plainRow(const Cells& row, std::size_t count)
{
    Cells cells;
    for (std::size_t i = 0; i < count; ++i) {
        cells.push_back(i < row.size() ? plainText(row[i]) : std::string());
    }
    return cells;
}

Table withoutEmptyColumns(const Table& table)
{
    std::vector<std::string_view> titles;
    for (std::size_t i = 0; i < table.titles.size(); ++i) {
        if (std::ranges::any_of(table.rows, [i](const Cells& row) { return i < row.size() && !row[i].empty(); })) {
            titles.emplace_back(table.titles[i]);
        }
    }
    Table shown = columnsOf(table, titles);
    for (Cells& row : shown.rows) {
        row = plainRow(row, shown.titles.size());
    }
    return shown;
}

std::size_t totalOf(const std::vector<std::size_t>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), gap * (widths.size() - 1));
}

using Widths = std::vector<std::size_t>;

/// How wide a column is, without what its title has more than its cells, and at least.
struct ColumnWidth {
    std::size_t full;
    std::size_t ofCells;
    std::size_t least;
};

/// Of words the beginning tells something; a code, a time or a name of a machine that is cut does not.
ColumnWidth widthOf(const Table& table, std::size_t column)
{
    constexpr std::size_t leastOfTitle = 8;
    constexpr std::size_t leastOfWords = 12;
    constexpr std::size_t leastOfCode = 20;
    const std::size_t title = columnsOf(table.titles[column]);
    const std::size_t cutTitle = std::min(title, leastOfTitle);
    std::size_t widest = 0;
    bool hasWords = false;
    for (const Cells& row : table.rows) {
        widest = std::max(widest, columnsOf(row[column]));
        hasWords = hasWords || row[column].find(' ') != std::string::npos;
    }
    return {std::max(title, widest), std::max(cutTitle, widest),
            std::max(cutTitle, std::min(widest, hasWords ? leastOfWords : leastOfCode))};
}

/// Makes the widest columns narrower until all fit the line or are as narrow as they may be.
void narrow(Widths& widths, const Widths& least, std::size_t line)
{
    while (totalOf(widths) > line && widths != least) {
        std::size_t widest = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const bool isWider = widths[widest] == least[widest] || widths[i] > widths[widest];
            widest = widths[i] > least[i] && isWider ? i : widest;
        }
        --widths[widest];
    }
}

/// How wide each column is; empty when the line has no room for them side by side. Titles are cut before cells are.
Widths widthsOf(const Table& table, std::size_t line)
{
    Widths widths;
    Widths ofCells;
    Widths least;
    for (std::size_t i = 0; i < table.titles.size(); ++i) {
        const ColumnWidth column = widthOf(table, i);
        widths.push_back(column.full);
        ofCells.push_back(column.ofCells);
        least.push_back(column.least);
    }
    narrow(widths, ofCells, line);
    narrow(widths, least, line);
    return totalOf(widths) > line ? Widths() : widths;
}

/// An address in numbers is none.
bool isNumber(std::string_view text)
{
    return text.find_first_not_of("0123456789.") == std::string_view::npos && std::ranges::count(text, '.') <= 1;
}

class SideBySide
{
public:
    SideBySide(const Table& table, Widths widths, const Terminal& terminal)
        : m_table(table), m_widths(std::move(widths)), m_terminal(terminal)
    {
        for (std::size_t& width : m_widths) {
            width = isLimited() ? width : std::min(width, mostPadded);
        }
        for (std::size_t i = 0; i < table.titles.size(); ++i) {
            m_isNumbers.push_back(std::ranges::all_of(table.rows, [i](const Cells& row) { return isNumber(row[i]); }));
        }
    }

    std::string line(const Cells& cells, InkOf inkOf) const
    {
        std::string text;
        std::size_t owed = 0; // blanks, which no line ends with
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::string cell = isLimited() ? cutTo(cells[i], m_widths[i]) : cells[i];
            const std::size_t blanks = m_widths[i] - std::min(m_widths[i], columnsOf(cell));
            owed += m_isNumbers[i] ? blanks : 0;
            if (!cell.empty()) {
                text.append(owed, ' ');
                text += m_terminal.inked(cell, inkOf != nullptr ? inkOf(m_table.titles[i], cells[i]) : Ink::None);
                owed = 0;
            }
            owed += gap + (m_isNumbers[i] ? 0 : blanks);
        }
        return text + "\n";
    }

private:
    bool isLimited() const { return m_terminal.width > 0; }

    const Table& m_table;
    Widths m_widths;
    const Terminal& m_terminal;
    std::vector<bool> m_isNumbers;
};

} // namespace

std::string tableText(const Table& table, const Terminal& terminal, InkOf inkOf)
{
    const Table shown = withoutEmptyColumns(table);
    if (shown.rows.empty() || shown.titles.empty()) {
        return {};
    }
    Table titled = shown;
    std::ranges::transform(titled.titles, titled.titles.begin(), titleText);
    Widths widths = widthsOf(titled, lineOf(terminal));
    std::string text;
    if (widths.empty()) {
        for (const Cells& row : shown.rows) {
            text.append(text.empty() ? "" : "\n").append(recordText(shown.titles, row, terminal, inkOf));
        }
        return text;
    }
    const SideBySide lines(shown, std::move(widths), terminal);
    text = lines.line(titled.titles, nullptr);
    for (const Cells& row : shown.rows) {
        text += lines.line(row, inkOf);
    }
    return text;
}

std::string tableText(const Table& table, std::vector<std::string_view> titles,
                      std::span<const std::string_view> spareTitles, const Terminal& terminal, InkOf inkOf)
{
    const Table whole = columnsOf(table, titles);
    for (auto spare = spareTitles.begin();; ++spare) {
        const Table chosen = columnsOf(table, titles);
        Table titled = withoutEmptyColumns(chosen);
        std::ranges::transform(titled.titles, titled.titles.begin(), titleText);
        if (titled.titles.empty() || !widthsOf(titled, lineOf(terminal)).empty()) {
            return tableText(chosen, terminal, inkOf);
        }
        if (spare == spareTitles.end()) {
            return tableText(whole, terminal, inkOf);
        }
        std::erase(titles, *spare);
    }
}

std::string titlesText(const Table& table, const Terminal& terminal)
{
    Table titled{table.titles, {}};
    std::ranges::transform(titled.titles, titled.titles.begin(), titleText);
    Widths widths;
    std::ranges::transform(titled.titles, std::back_inserter(widths), [](const auto& each) { return columnsOf(each); });
    return SideBySide(titled, std::move(widths), terminal).line(titled.titles, nullptr);
}

std::string recordText(const Cells& titles, const Cells& cells, const Terminal& terminal, InkOf inkOf)
{
    const Cells plain = plainRow(cells, titles.size());
    std::size_t label = 0;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        label = std::max(label, plain[i].empty() ? 0 : titles[i].size());
    }
    const std::size_t line = lineOf(terminal);
    // Where label and value do not fit beside each other, the value stands below its label.
    const bool isBeside = label + gap + 2 * narrowest <= line;
    const std::size_t indent = isBeside ? label + gap : 1;
    std::string text;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        if (plain[i].empty()) {
            continue;
        }
        std::string lead = cutTo(titleText(titles[i]), line);
        lead.append(isBeside ? indent - lead.size() : 0, ' ');
        if (!isBeside) {
            text += lead + "\n";
            lead = " ";
        }
        for (const std::string& part : wrapped(plain[i], std::max<std::size_t>(line - indent, 1))) {
            text += lead + terminal.inked(part, inkOf != nullptr ? inkOf(titles[i], cells[i]) : Ink::None) + "\n";
            lead.assign(indent, ' ');
        }
    }
    return text;
}

std::string sentenceText(std::string_view sentence, const Terminal& terminal)
{
    std::string text;
    for (const std::string& line : wrapped(plainText(sentence), lineOf(terminal))) {
        text += line + "\n";
    }
    return text;
}

Table columnsOf(const Table& table, const std::vector<std::string_view>& titles)
{
    std::vector<std::size_t> places;
    Table chosen;
    for (const std::string_view title : titles) {
        if (const auto found = std::ranges::find(table.titles, title); found != table.titles.end()) {
            places.push_back(static_cast<std::size_t>(found - table.titles.begin()));
            chosen.titles.emplace_back(title);
        }
    }
    for (const Cells& row : table.rows) {
        Cells& cells = chosen.rows.emplace_back();
        for (const std::size_t place : places) {
            cells.push_back(place < row.size() ? row[place] : std::string());
        }
    }
    return chosen;
}

std::string_view cellOf(const Table& table, const Cells& row, std::string_view title)
{
    const auto place = static_cast<std::size_t>(std::ranges::find(table.titles, title) - table.titles.begin());
    return place < row.size() ? std::string_view(row[place]) : std::string_view();
}

} // namespace lodestar
