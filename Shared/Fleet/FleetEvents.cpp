// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FleetEvents.h"

#include <algorithm>
#include <charconv>
#include <ctime>
#include <map>
#include <tuple>
#include <utility>

namespace lodestar
{
namespace
{

/// The first second of the device's day that lies so many days after today.
std::int64_t beginOfDay(WallTime now, int daysAfter)
{
    const std::time_t moment = std::chrono::system_clock::to_time_t(now);
    std::tm day{};
    localtime_r(&moment, &day);
    // Noon exists on every day, midnight does not where a clock change skips it.
    day.tm_mday += daysAfter;
    day.tm_hour = 12;
    day.tm_min = 0;
    day.tm_sec = 0;
    day.tm_isdst = -1;
    std::time_t begin = std::mktime(&day);
    const int date = day.tm_mday;
    constexpr std::time_t step = 900; // every zone's offset and clock change is a multiple of it
    while (day.tm_mday == date) {
        begin -= step;
        localtime_r(&begin, &day);
    }
    return begin + step;
}

bool isChosen(const FleetEvent& event, const EventChoice& choice)
{
    return (!choice.openOnly || event.isOpen) && (!choice.callHomeOnly || event.callsHome) &&
           (choice.consoles.empty() || choice.consoles.contains(event.corvel.get()));
}

/// Events that tell no time stand last.
void sortNewestFirst(const std::vector<FleetEvent>& events, std::vector<std::uint32_t>& indexes)
{
    std::ranges::stable_sort(indexes, [&events](std::uint32_t a, std::uint32_t b) {
        return events[a].lastReported > events[b].lastReported;
    });
}

/// The title of the event's group, behind what stands the group in its place.
std::pair<int, std::string> titleOf(const FleetEvent& event, EventOrder order)
{
    if (order == EventOrder::ByStatus) {
        std::string status = event.event.problemState().value_or("");
        return {event.isOpen ? 0 : status.empty() ? 2 : 1, std::move(status)};
    }
    return {event.referenceCode.empty() ? 1 : 0, event.referenceCode};
}

} // namespace

std::optional<std::int64_t> reportedSeconds(const std::optional<std::string>& text)
{
    std::string_view digits = text ? std::string_view(*text) : std::string_view();
    constexpr std::string_view blanks = " \t\r\n";
    digits.remove_prefix(std::min(digits.find_first_not_of(blanks), digits.size()));
    digits = digits.substr(0, digits.find_last_not_of(blanks) + 1);
    std::int64_t seconds = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), seconds);
    const std::string_view rest = digits.substr(static_cast<std::size_t>(end - digits.data()));
    const bool isFraction = rest.starts_with('.') && rest.find_first_not_of("0123456789", 1) == std::string_view::npos;
    return error == std::errc() && (rest.empty() || isFraction) ? std::optional(seconds) : std::nullopt;
}

std::optional<WallTime> wallTimeOf(std::optional<std::int64_t> seconds)
{
    constexpr std::int64_t last = 9'000'000'000; // the clock counts nanoseconds in 64 bits
    const bool isTime = seconds && *seconds >= -last && *seconds <= last;
    return isTime ? std::optional(WallTime(std::chrono::seconds(*seconds))) : std::nullopt;
}

std::vector<FleetEvent> eventsOf(const std::vector<ConsoleSnapshot>& consoles)
{
    std::vector<FleetEvent> events;
    for (const ConsoleSnapshot& console : consoles) {
        const bool isOffline = console.reading != nullptr && console.reading->outcome == Reading::Outcome::Offline;
        if (isOffline || console.feeds == nullptr) {
            continue;
        }
        for (ServiceableEvent& event : recordsOf<ServiceableEvent>(console.feeds->feed(ServiceableEvent::type))) {
            FleetEvent& each = events.emplace_back();
            each.corvel = console.corvel;
            each.console = console.name;
            each.lastReported = reportedSeconds(event.lastReported());
            each.firstReported = reportedSeconds(event.firstReported());
            each.isOpen = event.isOpen();
            each.callsHome = event.callsHome();
            each.referenceCode = event.referenceCode().value_or("");
            each.event = std::move(event);
        }
    }
    return events;
}

std::vector<EventGroup> groupedEvents(const std::vector<FleetEvent>& events, const EventChoice& choice)
{
    const bool hasTitles = choice.order == EventOrder::ByStatus || choice.order == EventOrder::ByReferenceCode;
    std::map<std::pair<int, std::string>, std::vector<std::uint32_t>> titles;
    for (std::uint32_t i = 0; i < events.size(); ++i) {
        if (isChosen(events[i], choice)) {
            titles[hasTitles ? titleOf(events[i], choice.order) : std::pair(0, std::string())].push_back(i);
        }
    }
    std::vector<EventGroup> groups;
    for (auto& [title, indexes] : titles) {
        if (choice.order != EventOrder::AsSent) {
            sortNewestFirst(events, indexes);
        }
        std::string newest = hasTitles ? events[indexes.front()].event.shortDescription().value_or("") : std::string();
        groups.push_back({title.second, std::move(newest), std::move(indexes)});
    }
    return groups;
}

std::vector<int> eventsADay(const std::vector<FleetEvent>& events, WallTime now, std::size_t days)
{
    std::vector<std::int64_t> begins; // of each day, and of tomorrow
    for (std::size_t i = 0; i <= days; ++i) {
        begins.push_back(beginOfDay(now, static_cast<int>(i + 1) - static_cast<int>(days)));
    }
    std::vector<int> counts(days);
    for (const FleetEvent& event : events) {
        if (event.firstReported && *event.firstReported >= begins.front() && *event.firstReported < begins.back()) {
            const auto next = std::ranges::upper_bound(begins, *event.firstReported);
            ++counts[static_cast<std::size_t>(next - begins.begin()) - 1];
        }
    }
    return counts;
}

} // namespace lodestar
