// SPDX-License-Identifier: Apache-2.0
#include "Inventory/FeedDate.h"

#include <algorithm>
#include <charconv>

namespace lodestar
{

std::optional<unsigned> numberOf(std::string_view digits)
{
    unsigned number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? std::optional(number) : std::nullopt;
}

std::optional<FeedDate> parseDateAndTime(std::string_view text)
{
    constexpr std::string_view pattern = "0000-00-00T00:00:00";
    const bool isShaped = std::ranges::equal(text, pattern, [](char given, char wanted) {
        return wanted == '0' ? given >= '0' && given <= '9' : given == wanted;
    });
    if (!isShaped) {
        return {};
    }
    const auto part = [text](std::size_t from, std::size_t length) { return *numberOf(text.substr(from, length)); };
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(part(0, 4))),
                                           std::chrono::month(part(5, 2)), std::chrono::day(part(8, 2))};
    const unsigned hours = part(11, 2);
    const unsigned minutes = part(14, 2);
    const unsigned seconds = part(17, 2);
    if (!date.ok() || hours > 23 || minutes > 59 || seconds > 59) {
        return {};
    }
    return FeedDate{date, std::chrono::hours(hours) + std::chrono::minutes(minutes) + std::chrono::seconds(seconds)};
}

std::optional<FeedDate> parseFeedDate(std::string_view text)
{
    constexpr std::size_t end = 19;
    auto read = parseDateAndTime(text.substr(0, end));
    const std::string_view rest = read ? text.substr(end) : std::string_view();
    if (rest.size() != 5 || rest.front() != '.' || rest.back() != 'Z' || read->date.year() == std::chrono::year(0)) {
        return {};
    }
    const auto fraction = numberOf(rest.substr(1, 3));
    if (!fraction) {
        return {};
    }
    read->time += std::chrono::milliseconds(*fraction);
    return read;
}

} // namespace lodestar
