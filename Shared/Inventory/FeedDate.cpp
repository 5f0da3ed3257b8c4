// SPDX-License-Identifier: Apache-2.0
#include "Inventory/FeedDate.h"

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr std::string_view pattern = "0000-00-00T00:00:00.000Z";

bool matchesPattern(std::string_view text)
{
    return std::ranges::equal(text, pattern, [](char given, char wanted) {
        return wanted == '0' ? given >= '0' && given <= '9' : given == wanted;
    });
}

unsigned number(std::string_view digits)
{
    unsigned value = 0;
    for (const char digit : digits) {
        value = value * 10 + static_cast<unsigned>(digit - '0');
    }
    return value;
}

} // namespace

std::optional<FeedDate> parseFeedDate(std::string_view text)
{
    if (!matchesPattern(text)) {
        return {};
    }
    const auto part = [text](std::size_t from, std::size_t length) { return number(text.substr(from, length)); };
    const unsigned year = part(0, 4);
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(year)), std::chrono::month(part(5, 2)),
                                           std::chrono::day(part(8, 2))};
    const unsigned hours = part(11, 2);
    const unsigned minutes = part(14, 2);
    const unsigned seconds = part(17, 2);
    if (year == 0 || !date.ok() || hours > 23 || minutes > 59 || seconds > 59) {
        return {};
    }
    return FeedDate{date, std::chrono::hours(hours) + std::chrono::minutes(minutes) + std::chrono::seconds(seconds) +
                              std::chrono::milliseconds(part(20, 3))};
}

} // namespace lodestar
