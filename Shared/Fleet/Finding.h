// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Memory.h"
#include "Fleet/Reading.h"
#include "XML/XMLElement.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What is known of one console at one moment. Findings are made of these alone.
struct ConsoleSnapshot {
    CorvelRef corvel; ///< what a finding opens; the findings themselves read the fields below
    std::string name;
    std::string address;
    std::shared_ptr<const Reading> reading;
    std::shared_ptr<const FeedDictionary> feeds; ///< null when nothing was fetched
    std::shared_ptr<const ConsoleMemory> memory; ///< null when nothing is remembered
};
/// Whether the console answered. What is known of one that does not is old, and what it would be now is not known.
bool wasRead(const ConsoleSnapshot& console);

/// What kind of thing is wrong, worst first. The order of the rows.
enum class FindingRank {
    SystemErrorLit = 1, ///< a system in error or incomplete, its attention LED lit
    SystemError,
    IOServerError,
    PartitionError,
    ConsoleOffline,
    FeedsMissing, ///< one a console
    Stopped,      ///< an I/O server or a partition that ran in the last 24 hours
    LEDLit,       ///< of a system without an error
    GroupError,   ///< through a member that is not listed itself
    OpenEvent
};
enum class FindingBand { Errors, NotAnswering, Warnings, OpenEvents };
FindingBand bandOf(FindingRank rank);

/// What a finding is about, as the filter names it.
enum class FindingSubject { Console, System, IOServer, Partition, Group, Event };

/// One thing that is wrong. Its words belong to the screens.
struct Finding {
    FindingRank rank = FindingRank::SystemError;
    FindingSubject subject = FindingSubject::System;
    CorvelRef corvel;
    std::string console; ///< the console's name
    ObjectKey object;    ///< empty for a console
    XMLElement element;  ///< what the object's detail screen shows; none for a console
    std::string name;    ///< of the object or the console
    std::optional<Since> since;
    std::string state;
    std::string system; ///< of a partition or I/O server in error: its system's name; empty when that is not known
    std::string referenceCode;
    std::optional<Error> error;                  ///< a console's
    std::vector<std::string_view> missing;       ///< types of the feeds that are missing
    std::optional<WallTime> ranUntil;            ///< a stopped one's
    std::size_t membersInError = 0, members = 0; ///< a group's
    std::string groupColor;                      ///< a group's
    std::string eventNumber;
    std::string eventText; ///< also the name, unless it is empty
    bool callsHome = false;
    int duplicates = 0; ///< further reports of the same event

    /// Whether a system is only incomplete; an error says more.
    bool isIncomplete() const;
};

} // namespace lodestar
