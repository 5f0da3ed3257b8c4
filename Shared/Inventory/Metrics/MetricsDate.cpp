// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Metrics/MetricsDate.h"

#include <algorithm>
#include <array>

namespace lodestar
{
namespace
{

constexpr std::string_view pattern = "0000-00-00T00:00:00.";
constexpr std::array<std::string_view, 3> zeroZones = {"GMT", "UTC", "UT"};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The text must be digits alone.
unsigned number(std::string_view digits)
{
    unsigned value = 0;
    for (const char digit : digits) {
        value = value * 10 + static_cast<unsigned>(digit - '0');
    }
    return value;
}

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
    const bool isShaped = !hours.empty() && hours.size() <= 2 && minutes.size() == 2 &&
                          std::ranges::all_of(hours, isDigit) && std::ranges::all_of(minutes, isDigit);
    if (!isShaped || number(hours) > 23 || number(minutes) > 59) {
        return {};
    }
    const std::chrono::minutes length = std::chrono::hours(number(hours)) + std::chrono::minutes(number(minutes));
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
    const std::string_view stamp = text.substr(0, pattern.size());
    const bool isShaped = std::ranges::equal(
        stamp, pattern, [](char given, char wanted) { return wanted == '0' ? isDigit(given) : given == wanted; });
    if (!isShaped) {
        return {};
    }
    const auto part = [stamp](std::size_t from, std::size_t length) { return number(stamp.substr(from, length)); };
    const std::chrono::year_month_day day{std::chrono::year(static_cast<int>(part(0, 4))),
                                          std::chrono::month(part(5, 2)), std::chrono::day(part(8, 2))};
    const auto offset = offsetOf(text.substr(pattern.size()));
    if (!day.ok() || part(11, 2) > 23 || part(14, 2) > 59 || part(17, 2) > 59 || !offset) {
        return {};
    }
    return std::chrono::sys_days(day) + std::chrono::hours(part(11, 2)) + std::chrono::minutes(part(14, 2)) +
           std::chrono::seconds(part(17, 2)) - *offset;
}

} // namespace lodestar
