// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// Rows of cells under one line of titles. Text is UTF-8. A row may be shorter than the titles: the cells that it lacks
/// are empty. A value; any thread.
struct Table {
    std::vector<std::string> titles;
    std::vector<std::vector<std::string>> rows;
};

/// The table as comma-separated values (RFC 4180): every line ends with CR LF, a cell is quoted when it must be. A cell
/// that a spreadsheet would run as a formula begins with an apostrophe, so that the spreadsheet shows it as text;
/// plain numbers stay as they are.
std::string csvOf(const Table& table);

/// Domain of the errors of `readCsv`.
inline constexpr std::string_view csvErrorDomain = "Csv";
enum CsvFailure {
    csvNotText = 1, ///< the bytes are no UTF-8 text
    csvOpenQuote,   ///< a quoted cell does not end
    csvTooLarge,    ///< more than the limits below
};
inline constexpr std::size_t csvMostBytes = std::size_t{32} << 20;
inline constexpr std::size_t csvMostRows = 200'000;
inline constexpr std::size_t csvMostColumns = 1'000;
/// A cell takes 32 bytes even when it is empty.
inline constexpr std::size_t csvMostCells = 4'000'000;

/// Reads comma-, semicolon- or tab-separated values; the first line decides which of them separates. A byte-order mark
/// is skipped, quoted cells may hold line ends, lines end with LF, CR or CR LF, and empty lines are left out. An
/// apostrophe that `csvOf` added is taken away again. An empty text is an empty table.
///
/// `lines` receives, for each row of the table, its number as a spreadsheet counts: the titles of a sheet without empty
/// lines are 1, and a row with line ends in its cells counts once.
Result<Table> readCsv(std::string_view bytes, std::vector<std::size_t>* lines = nullptr);

} // namespace lodestar
