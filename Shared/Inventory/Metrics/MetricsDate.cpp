// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Metrics/MetricsDate.h"

#include "Inventory/FeedDate.h"

#include <algorithm>
#include <array>

namespace lodestar
{
namespace
{

constexpr std::array<std::string_view, 3> zeroZones = {"GMT", "UTC", "UT"};

/// Reads "+1", "+01", "+0130", "+1:30" or "+01:30", with either sign; nothing for any other text.
std::optional<std::chrono::minutes> distance(std::string_view text)
{
    const bool isWest = text.front() == '-';
    if (!isWest && text.front() != '+') {
        return {};
    }
    text.remove_prefix(1);
    std::string_view hours = text.substr(0, text.find(':'));
    std::string_view minutes = "00";
    if (hours.size() != text.size()) {
        minutes = text.substr(hours.size() + 1);
    } else if (hours.size() == 4) {
        minutes = hours.substr(2);
        hours = hours.substr(0, 2);
    }
    const auto wholeHours = numberOf(hours);
    const auto restMinutes = numberOf(minutes);
    if (hours.size() > 2 || minutes.size() != 2 || !wholeHours || !restMinutes || *wholeHours > 23 ||
        *restMinutes > 59) {
        return {};
    }
    const std::chrono::minutes length = std::chrono::hours(*wholeHours) + std::chrono::minutes(*restMinutes);
    return isWest ? -length : length;
}

/// How far the zone is ahead of UTC; nothing when the zone is not known.
std::optional<std::chrono::minutes> offsetOf(std::string_view zone)
{
    if (zone == "Z") {
        return std::chrono::minutes(0);
    }
    const auto* const name =
        std::ranges::find_if(zeroZones, [zone](std::string_view each) { return zone.starts_with(each); });
    if (name != zeroZones.end()) {
        zone.remove_prefix(name->size());
        if (zone.empty()) {
            return std::chrono::minutes(0);
        }
    }
    return zone.empty() ? std::nullopt : distance(zone);
}

} // namespace

std::optional<MetricsDate> dateFromString(std::string_view text)
{
    constexpr std::size_t point = 19;
    const auto read = parseDateAndTime(text.substr(0, point));
    if (!read || text.size() == point || text[point] != '.') {
        return {};
    }
    const auto offset = offsetOf(text.substr(point + 1));
    if (!offset) {
        return {};
    }
    return std::chrono::sys_days(read->date) + std::chrono::duration_cast<std::chrono::seconds>(read->time) - *offset;
}

} // namespace lodestar
