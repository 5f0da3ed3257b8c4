// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetEvents.h"
#include "Inventory/SearchIndex.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lodestar
{

/// What a search looks at besides an event's title and console: its codes, its text and the system that
/// fails.
std::vector<std::string> searchedDetails(const FleetEvent& event);

/// The events of the consoles that were read, made of a picture of them. A value.
struct FleetEventList {
    static constexpr std::size_t barDays = 14;

    std::vector<FleetEvent> events;
    std::vector<EventGroup> groups;
    std::vector<std::uint32_t> shown; ///< the groups' events, one after the other; a search finds rows of it
    SearchIndex texts;                ///< of `shown`: all that a search looks at
    std::vector<int> perDay;
    std::size_t open = 0; ///< of all events
    std::size_t callHome = 0;
    std::size_t read = 0; ///< consoles
    std::vector<std::string> consolesNotRead;
    std::vector<std::string> eventsNotRead; ///< consoles that answered without their events

    /// Any thread.
    static FleetEventList of(const std::vector<ConsoleSnapshot>& consoles, const EventChoice& choice, WallTime now);
};

} // namespace lodestar
