// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/FleetEventList.h"

#include <algorithm>

namespace lodestar
{
namespace
{

/// Stands between the texts of an event, and cannot be typed.
constexpr char separator = '\x1F';

std::string searchedText(const FleetEvent& event)
{
    std::string text = event.event.title() + separator + event.console;
    for (const std::string& detail : searchedDetails(event)) {
        text += separator + detail;
    }
    return text;
}

} // namespace

std::vector<std::string> searchedDetails(const FleetEvent& event)
{
    const ServiceableEvent& record = event.event;
    std::vector<std::string> details;
    for (const auto& field : {record.referenceCode(), record.systemReferenceCode(), record.shortDescription(),
                              record.failingSystem().hostName()}) {
        if (field) {
            details.push_back(*field);
        }
    }
    return details;
}

FleetEventList FleetEventList::of(const std::vector<ConsoleSnapshot>& consoles, const EventChoice& choice, WallTime now)
{
    FleetEventList list;
    std::vector<ConsoleSnapshot> read;
    for (const ConsoleSnapshot& console : consoles) {
        if (!wasRead(console)) {
            list.consolesNotRead.push_back(console.name);
            continue;
        }
        read.push_back(console);
        if (!console.feeds || console.feeds->feed(ObjectType::ServiceableEvent).isNA()) {
            list.eventsNotRead.push_back(console.name);
        }
    }
    list.read = read.size();
    list.events = eventsOf(read);
    list.groups = groupedEvents(list.events, choice);
    list.perDay = eventsADay(list.events, now, barDays);
    list.open = static_cast<std::size_t>(std::ranges::count_if(list.events, &FleetEvent::isOpen));
    list.callHome = static_cast<std::size_t>(std::ranges::count_if(list.events, &FleetEvent::callsHome));
    for (const EventGroup& group : list.groups) {
        for (const std::uint32_t event : group.events) {
            list.shown.push_back(event);
            list.texts.add(searchedText(list.events[event]));
        }
    }
    return list;
}

} // namespace lodestar
