// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Findings.h"

#include "Fleet/ConsoleFindings.h"
#include "Platform/NameOrder.h"
#include "Platform/Queues/ConcurrentPerform.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <tuple>
#include <utility>

namespace lodestar
{
namespace
{

constexpr std::size_t consolesOfPart = 32; // some milliseconds' work on a slow device

/// Where a finding stands, without its name. Findings are large and lie far apart, so these are sorted in their place.
struct Place {
    int rank;
    WallTime::duration age; ///< grows with the time that passed
    std::uint32_t console;
    std::uint32_t part;
    std::uint32_t index; ///< in the part
};

int rankOf(const Finding& finding)
{
    const bool isLater = finding.rank == FindingRank::Stopped && finding.subject == FindingSubject::Partition;
    return 2 * static_cast<int>(finding.rank) + (isLater ? 1 : 0);
}

/// A number for each console by the order of their names. Names that are equal in that order have equal numbers.
std::vector<std::uint32_t> numbersOf(const std::vector<ConsoleSnapshot>& consoles)
{
    std::vector<std::uint32_t> order(consoles.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto isBefore = [&consoles, &names = NameOrder::standard()](std::uint32_t a, std::uint32_t b) {
        return names.compare(consoles[a].name, consoles[b].name) < 0;
    };
    std::ranges::sort(order, isBefore);
    std::vector<std::uint32_t> numbers(consoles.size());
    for (std::uint32_t i = 1; i < order.size(); ++i) {
        numbers[order[i]] = numbers[order[i - 1]] + (isBefore(order[i - 1], order[i]) ? 1 : 0);
    }
    return numbers;
}

/// What some consoles in a row contribute.
struct Part {
    std::deque<Finding> list;
    std::vector<Place> places;
};

Part partOf(const std::vector<ConsoleSnapshot>& consoles, const std::vector<std::uint32_t>& numbers, std::uint32_t part,
            WallTime now)
{
    Part found;
    const std::size_t end = std::min(consoles.size(), (part + 1) * consolesOfPart);
    for (std::size_t i = part * consolesOfPart; i < end; ++i) {
        addFindings(consoles[i], now, found.list);
        while (found.places.size() < found.list.size()) {
            const auto index = static_cast<std::uint32_t>(found.places.size());
            const Finding& finding = found.list[index];
            found.places.push_back({rankOf(finding), -finding.since->time.time_since_epoch(), numbers[i], part, index});
        }
    }
    return found;
}

std::vector<Finding> sorted(std::vector<Part>& parts)
{
    std::vector<Place> places;
    for (const Part& part : parts) {
        places.insert(places.end(), part.places.begin(), part.places.end());
    }
    const auto at = [&parts](const Place& place) -> Finding& { return parts[place.part].list[place.index]; };
    std::ranges::sort(places, [&at](const Place& a, const Place& b) {
        const auto first = std::tie(a.rank, a.age, a.console);
        const auto second = std::tie(b.rank, b.age, b.console);
        if (first != second) {
            return first < second;
        }
        const int names = NameOrder::standard().compare(at(a).name, at(b).name);
        return names != 0 ? names < 0 : std::tie(a.part, a.index) < std::tie(b.part, b.index);
    });
    std::vector<Finding> list;
    list.reserve(places.size());
    for (const Place& place : places) {
        list.push_back(std::move(at(place)));
    }
    return list;
}

} // namespace

Findings findingsOf(const std::vector<ConsoleSnapshot>& consoles, WallTime now)
{
    const std::vector<std::uint32_t> numbers = numbersOf(consoles);
    std::vector<Part> parts((consoles.size() + consolesOfPart - 1) / consolesOfPart);
    concurrentPerform(parts.size(), [&](std::size_t part) {
        parts[part] = partOf(consoles, numbers, static_cast<std::uint32_t>(part), now);
    });
    Findings findings;
    findings.list = sorted(parts);
    const auto events = std::ranges::count(findings.list, FindingRank::OpenEvent, &Finding::rank);
    findings.openEvents = static_cast<std::size_t>(events);
    findings.needAttention = findings.list.size() - findings.openEvents;
    for (const ConsoleSnapshot& console : consoles) {
        const bool isOffline = console.reading != nullptr && console.reading->outcome == Reading::Outcome::Offline;
        findings.beforeOffline += isOffline && console.memory != nullptr ? console.memory->neededAttention : 0;
    }
    return findings;
}

} // namespace lodestar
