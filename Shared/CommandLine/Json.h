// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine/FleetPicture.h"
#include "Fleet/Change.h"
#include "Fleet/Csv.h"

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// The JSON that scripts read. Names and their meanings never change within a schema; new ones may come. Pure.
namespace Json
{
inline constexpr int schema = 1;
using Value = nlohmann::ordered_json;

/// The beginning of every answer: schema and command.
Value answer(std::string_view command);
/// The same, with the verdict and how much was read.
Value answer(std::string_view command, const FleetPicture& picture);

/// In UTC, "2026-03-12T09:41:00Z"; null for none.
Value time(const std::optional<WallTime>& time);
Value text(std::string_view text); ///< null when empty
Value error(const std::optional<Error>& error);
/// An object by the table's titles: texts as they are, null for empty ones; numbers where the title promises one.
Value row(const Table& table, const std::vector<std::string>& row);
Value rows(const Table& table);
Value finding(const Finding& finding, WallTime now);
Value change(const Change& change);

/// The value in ASCII, so that no terminal obeys it. With line ends and indents, or in one line.
std::string document(const Value& value);
std::string line(const Value& value);

} // namespace Json

} // namespace lodestar
