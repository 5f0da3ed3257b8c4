// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Change.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A row: one change, or several of one kind and sense that say the same of one kind of object and were found by one
/// reading. Changes of consoles themselves are of one reading when one refresh of several consoles found them.
struct ChangeRow {
    std::vector<std::uint32_t> changes; ///< indexes into the list, in its order; the first stands for all
    bool isFolded() const { return changes.size() > 1; }
    friend bool operator==(const ChangeRow&, const ChangeRow&) = default;
};

/// A day's rows, newest first. What is neither worse nor better counts for neither.
struct ChangeDay {
    std::chrono::local_days date;
    std::vector<ChangeRow> rows;
    int worse = 0;
    int better = 0;
};

/// Whether the change is one of a console itself and not of an object of it.
bool isOfConsole(const Change& change);

/// The day of a moment.
using DayOf = std::function<std::chrono::local_days(WallTime)>;
/// The day in the device's time zone.
std::chrono::local_days localDayOf(WallTime time);

inline constexpr std::size_t foldChangesFrom = 5;

/// The days that have changes, newest first. `changes` are in any order; an empty set of addresses takes those of all
/// consoles. Pure apart from what `dayOf` does; any thread.
std::vector<ChangeDay> daysOf(const std::vector<Change>& changes, const std::set<std::string>& addresses,
                              const DayOf& dayOf = localDayOf);

/// How many rows of each of the last days are worse and better, the last one today. Days beyond are left out.
struct ChangeCount {
    int worse = 0;
    int better = 0;
    friend bool operator==(const ChangeCount&, const ChangeCount&) = default;
};
std::vector<ChangeCount> countsOf(const std::vector<ChangeDay>& days, std::chrono::local_days today, std::size_t count);

/// By how many more objects of the type have the state now than had it at `since`, as far as the changes tell; 0 for
/// most states.
int differenceSince(const std::vector<Change>& changes, std::string_view type, std::string_view state, WallTime since);

} // namespace lodestar
