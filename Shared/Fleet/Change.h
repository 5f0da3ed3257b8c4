// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Memory.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lodestar
{

/// How something differs between two readings of a console.
enum class ChangeKind {
    State, ///< `from` → `to`
    LEDOn,
    LEDOff,
    EventOpened, ///< `name` is the event's number, `to` its text
    EventGone,   ///< only that was seen; `name` and `to` likewise
    Offline,
    OnlineAgain, ///< after `lasted`
    FeedMissing, ///< `object.type` says which feed
    FeedReadAgain,
    ObjectNew,
    ObjectGone,
    CertificateChanged
};
enum class ChangeSense { Worse, Better, Neutral };

struct Change {
    std::int64_t row = 0; ///< of the history; 0 before it is stored
    WallTime seen;        ///< the end of the reading that found it
    WallTime before;      ///< the end of the reading before it: the change happened in between
    std::string address;  ///< of the console
    std::string console;  ///< the console's name then
    ChangeKind kind = ChangeKind::State;
    ChangeSense sense = ChangeSense::Neutral;
    ObjectKey object;
    std::string name; ///< of the object
    std::string from;
    std::string to;
    std::chrono::seconds lasted{};
    friend bool operator==(const Change&, const Change&) = default;
};

/// Rows of the changes that are kept, newest first.
struct ChangeList {
    std::vector<Change> changes;
    bool leftOut = false; ///< older changes were left out because there were too many
    /// Before any console was read for the second time no change can be seen.
    bool mayShow = false;
};

/// Whole days leave: those that are older, and the oldest ones when there are more changes.
inline constexpr std::chrono::days changesKeptFor{30};
inline constexpr std::size_t mostChangesKept = 10'000;

/// What one reading of a console changed, and what is remembered after it.
struct Difference {
    std::vector<Change> changes;
    std::shared_ptr<const ConsoleMemory> memory;
    bool memoryChanged = false; ///< false: two readings of an unchanged console, nothing to write
};

/// Compares a reading with what is remembered. A feed that is missing changes none of its objects; an offline console
/// changes none at all. The first reading of a console makes no changes, only memory. Pure; any thread.
Difference differenceOf(const std::string& address, const std::string& console, const Reading& reading,
                        const FeedDictionary* feeds, const std::shared_ptr<const ConsoleMemory>& before);

} // namespace lodestar
