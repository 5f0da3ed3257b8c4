// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Finding.h"
#include "Inventory/ServiceableEvent.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace lodestar
{

/// One console's event among those of all consoles.
struct FleetEvent {
    CorvelRef corvel;
    std::string console;
    ServiceableEvent event;
    std::optional<std::int64_t> lastReported; ///< seconds since 1970; none when the console's text is no number
    std::optional<std::int64_t> firstReported;
    bool isOpen = false;
    bool callsHome = false;
    std::string referenceCode; ///< empty for none
};

enum class EventOrder { AsSent, NewestFirst, ByStatus, ByReferenceCode };

struct EventChoice {
    EventOrder order = EventOrder::AsSent;
    bool openOnly = false;
    bool callHomeOnly = false;
    std::set<const Corvel*> consoles{}; ///< empty for all
    friend bool operator==(const EventChoice&, const EventChoice&) = default;
};

/// Events under one heading. The order that consoles send and the newest first have one group without a title.
struct EventGroup {
    std::string title; ///< a status or a reference code, as the console has it; empty for none
    std::string newestText;
    std::vector<std::uint32_t> events; ///< indexes into the list
};

/// Seconds since 1970, as events tell them; none for a text that is no number.
std::optional<std::int64_t> reportedSeconds(const std::optional<std::string>& text);
/// The moment that these seconds tell; none for one that no clock shows, as a console's milliseconds would.
std::optional<WallTime> wallTimeOf(std::optional<std::int64_t> seconds);

/// The events of all consoles that were read, in the consoles' order. Those of a console that is offline are left out:
/// what is old is not known. Pure; any thread.
std::vector<FleetEvent> eventsOf(const std::vector<ConsoleSnapshot>& consoles);
/// The chosen events, grouped; within a status or a reference code the newest first. "Open" stands before the other
/// statuses, which are sorted by name as the codes are; events without a status or code stand last. Pure; any thread.
std::vector<EventGroup> groupedEvents(const std::vector<FleetEvent>& events, const EventChoice& choice);
/// How many events were first reported on each of the last days, the last one today. Days are the device's, also when a
/// clock change makes one longer.
std::vector<int> eventsADay(const std::vector<FleetEvent>& events, WallTime now, std::size_t days);

} // namespace lodestar
