// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Csv.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <utf8proc.h>
#include <utility>

namespace lodestar
{
namespace
{

constexpr char guard = '\'';
constexpr std::string_view separators = ",;\t";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view withoutDigits(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of("0123456789"), text.size()));
}

/// Whether the text is a number below zero as every spreadsheet reads it: "-5", "-0.25", "-1e-05".
bool isNegativeNumber(std::string_view text)
{
    if (!text.starts_with('-') || text.size() < 2 || std::isdigit(static_cast<unsigned char>(text[1])) == 0) {
        return false;
    }
    text = withoutDigits(text.substr(1));
    const auto takeDigits = [&text] {
        const std::size_t before = text.size();
        text = withoutDigits(text);
        return text.size() < before;
    };
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        if (!takeDigits()) {
            return false;
        }
    }
    if (text.starts_with('e') || text.starts_with('E')) {
        text.remove_prefix(1);
        if (text.starts_with('-') || text.starts_with('+')) {
            text.remove_prefix(1);
        }
        if (!takeDigits()) {
            return false;
        }
    }
    return text.empty();
}

/// Whether what follows blanks, quotes and guards begins a formula. Spreadsheets skip blanks, those with a separator
/// other than ours may strip quotes, and some take the wide forms of the signs as well. A guard before a formula must
/// be guarded, too: else reading would take away a guard that is part of the text.
bool needsGuard(std::string_view cell)
{
    if (isNegativeNumber(cell)) {
        return false;
    }
    cell.remove_prefix(std::min(cell.find_first_not_of(guard), cell.size()));
    if (cell.starts_with('\t') || cell.starts_with('\r')) {
        return true;
    }
    constexpr std::array<std::string_view, 4> wideBlanks = {"\xC2\xA0", "\xE3\x80\x80", "\xEF\xBB\xBF", "\xE2\x80\x8B"};
    constexpr std::array<std::string_view, 4> wideSigns = {"\uFF1D", "\uFF0B", "\uFF0D", "\uFF20"};
    while (!cell.empty()) {
        const auto begins = [cell](std::string_view sign) { return cell.starts_with(sign); };
        if (std::string_view(" \t\r\n\"'").find(cell.front()) != std::string_view::npos) {
            cell.remove_prefix(1);
        } else if (const auto* const blank = std::ranges::find_if(wideBlanks, begins); blank != wideBlanks.end()) {
            cell.remove_prefix(blank->size());
        } else {
            return std::string_view("=+-@").find(cell.front()) != std::string_view::npos ||
                   std::ranges::any_of(wideSigns, begins);
        }
    }
    return false;
}

void appendCell(std::string& text, std::string_view cell)
{
    const bool guarded = needsGuard(cell);
    if (cell.find_first_of(",;\t\"\r\n") == std::string_view::npos) {
        text.append(guarded ? 1 : 0, guard).append(cell);
        return;
    }
    text += '"';
    text.append(guarded ? 1 : 0, guard);
    for (std::size_t quote = 0; (quote = cell.find('"')) != std::string_view::npos;) {
        text.append(cell.substr(0, quote + 1)) += '"';
        cell.remove_prefix(quote + 1);
    }
    text.append(cell) += '"';
}

/// The text, for bytes that are no UTF-8 with U+FFFD: a reader would refuse the whole file because of one of them.
std::string readable(std::string_view text)
{
    std::string whole;
    while (!text.empty()) {
        std::int32_t code = 0;
        const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                             static_cast<utf8proc_ssize_t>(text.size()), &code);
        const std::size_t taken = length > 0 ? static_cast<std::size_t>(length) : 1;
        whole.append(length > 0 ? text.substr(0, taken) : "\uFFFD");
        text.remove_prefix(taken);
    }
    return whole;
}

void appendLine(std::string& text, const std::vector<std::string>& cells, std::size_t columns)
{
    const std::size_t begin = text.size();
    for (std::size_t i = 0; i < std::max(columns, cells.size()); ++i) {
        if (i > 0) {
            text += ',';
        }
        if (i < cells.size()) {
            appendCell(text, cells[i]);
        }
    }
    // An empty line is no row.
    text += text.size() == begin ? "\"\"\r\n" : "\r\n";
}

Error failure(CsvFailure code, const char* reason)
{
    return {std::string(csvErrorDomain), code, {}, reason, nullptr};
}

/// The separator that stands most often in the first line with cells, outside quotes; a comma when there is none.
char separatorOf(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
    std::array<std::size_t, separators.size()> counts{};
    bool isQuoted = false;
    bool beginsCell = true;
    for (const char each : text) {
        if (each == '"' && (isQuoted || beginsCell)) {
            isQuoted = !isQuoted;
            beginsCell = !isQuoted; // the second quote of a pair opens again
            continue;
        }
        if (isQuoted) {
            continue;
        }
        if (each == '\r' || each == '\n') {
            break;
        }
        const std::size_t which = separators.find(each);
        beginsCell = which != std::string_view::npos;
        if (beginsCell) {
            ++counts.at(which);
        }
    }
    return separators[static_cast<std::size_t>(std::ranges::max_element(counts) - counts.begin())];
}

/// Reads the rows of a text, the titles first.
class CsvReader
{
public:
    CsvReader(std::string_view text, std::vector<std::size_t>* lines)
        : m_rest(text), m_separator(separatorOf(text)), m_lines(lines)
    {
    }

    Result<Table> read()
    {
        std::size_t cells = 0;
        for (std::size_t line = 1; !m_rest.empty(); ++line) {
            if (takeLineEnd()) {
                continue;
            }
            std::vector<std::string> row = takeRow();
            if (m_isOpen) {
                return failure(csvOpenQuote, "a quoted cell does not end");
            }
            cells += row.size();
            if (row.size() > csvMostColumns || cells > csvMostCells || m_table.rows.size() == csvMostRows) {
                return failure(csvTooLarge, "too many rows or columns");
            }
            add(std::move(row), line);
        }
        return std::move(m_table);
    }

private:
    void add(std::vector<std::string> row, std::size_t line)
    {
        if (!m_hasTitles) {
            m_hasTitles = true;
            m_table.titles = std::move(row);
            return;
        }
        m_table.rows.push_back(std::move(row));
        if (m_lines != nullptr) {
            m_lines->push_back(line);
        }
    }

    bool takeLineEnd()
    {
        if (m_rest.empty() || (m_rest.front() != '\r' && m_rest.front() != '\n')) {
            return false;
        }
        m_rest.remove_prefix(m_rest.starts_with("\r\n") ? 2 : 1);
        return true;
    }

    /// Ends at the first column too many: a line of millions of separators must not become millions of cells.
    std::vector<std::string> takeRow()
    {
        std::vector<std::string> row;
        while (row.size() <= csvMostColumns) {
            row.push_back(takeCell());
            if (m_isOpen || m_rest.empty() || takeLineEnd()) {
                break;
            }
            m_rest.remove_prefix(1); // the separator
        }
        return row;
    }

    std::string takeCell()
    {
        std::string cell;
        if (m_rest.starts_with('"')) {
            m_rest.remove_prefix(1);
            takeQuoted(cell);
        }
        // What follows a closing quote belongs to the cell as it is, as spreadsheets have it.
        const std::array<char, 3> ends = {m_separator, '\r', '\n'};
        const std::size_t length =
            std::min(m_rest.find_first_of(std::string_view(ends.data(), ends.size())), m_rest.size());
        cell.append(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        if (cell.starts_with(guard) && needsGuard(std::string_view(cell).substr(1))) {
            cell.erase(0, 1);
        }
        return cell;
    }

    void takeQuoted(std::string& cell)
    {
        while (true) {
            const std::size_t quote = m_rest.find('"');
            if (quote == std::string_view::npos) {
                m_isOpen = true;
                return;
            }
            const bool isDoubled = m_rest.substr(quote + 1).starts_with('"');
            cell.append(m_rest.substr(0, quote + (isDoubled ? 1 : 0)));
            m_rest.remove_prefix(quote + (isDoubled ? 2 : 1));
            if (!isDoubled) {
                return;
            }
        }
    }

    std::string_view m_rest;
    const char m_separator;
    std::vector<std::size_t>* const m_lines;
    Table m_table;
    bool m_hasTitles = false;
    bool m_isOpen = false; ///< a quoted cell does not end
};

} // namespace

std::string csvOf(const Table& table)
{
    std::string text;
    if (!table.titles.empty() || !table.rows.empty()) {
        appendLine(text, table.titles, table.titles.size());
    }
    for (const auto& row : table.rows) {
        appendLine(text, row, table.titles.size());
    }
    return simdjson::validate_utf8(text) ? text : readable(text);
}

Result<Table> readCsv(std::string_view bytes, std::vector<std::size_t>* lines)
{
    if (bytes.size() > csvMostBytes) {
        return failure(csvTooLarge, "too many bytes");
    }
    // A zero byte is valid UTF-8, but no text has one: UTF-16 and pictures do.
    if (!simdjson::validate_utf8(bytes) || bytes.find('\0') != std::string_view::npos) {
        return failure(csvNotText, "not UTF-8 text");
    }
    if (bytes.starts_with(byteOrderMark)) {
        bytes.remove_prefix(byteOrderMark.size());
    }
    return CsvReader(bytes, lines).read();
}

} // namespace lodestar
