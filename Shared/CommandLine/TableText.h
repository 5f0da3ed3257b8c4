// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine/Terminal.h"
#include "Fleet/Csv.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// How a cell is inked, by its column's title and its text.
using InkOf = Ink (*)(std::string_view title, std::string_view cell);

/// The table for a person: columns side by side, cut where the terminal is narrow; one below the other, whole, where it
/// is too narrow for that. Every cell is plain text. Empty columns are left out.
std::string tableText(const Table& table, const Terminal& terminal, InkOf inkOf = nullptr);
/// The same of the columns with these titles. Where they do not fit side by side, the spare ones go, the first ones
/// first; all stay when the others do not fit either.
std::string tableText(const Table& table, std::vector<std::string_view> titles,
                      std::span<const std::string_view> spareTitles, const Terminal& terminal, InkOf inkOf = nullptr);
/// The titles alone: what a table without rows is where no person reads it.
std::string titlesText(const Table& table, const Terminal& terminal);
/// One object: a line a field, without empty ones.
std::string recordText(const std::vector<std::string>& titles, const std::vector<std::string>& cells,
                       const Terminal& terminal, InkOf inkOf = nullptr);
/// A sentence in the terminal's width, with its line end.
std::string sentenceText(std::string_view sentence, const Terminal& terminal);

/// The columns with these titles, in their order; titles that the table lacks are left out.
Table columnsOf(const Table& table, const std::vector<std::string_view>& titles);
/// The row's cell below the title; empty when there is none.
std::string_view cellOf(const Table& table, const std::vector<std::string>& row, std::string_view title);

} // namespace lodestar
