// SPDX-License-Identifier: Apache-2.0
// Any text as a stamp: what is read of a feed's says just what stands there, and what is read of the metrics' is where
// its date, its clock and its zone put it.
#include "Inventory/FeedDate.h"
#include "Inventory/Metrics/MetricsDate.h"
#include "Tests/Fuzz/Require.h"

#include <fmt/format.h>

#include <cstdint>
#include <string>

namespace
{

using namespace lodestar;
using namespace std::chrono;
using fuzz::require;

std::string written(const year_month_day& date, milliseconds time)
{
    const hh_mm_ss clock(time);
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}.", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), clock.hours().count(),
                       clock.minutes().count(), clock.seconds().count());
}

void checkFeedDate(const std::string& text)
{
    if (const auto read = parseFeedDate(text)) {
        require(read->date.ok() && read->time >= 0h && read->time < 24h, "a date and time that exist", text);
        require(written(read->date, read->time) + fmt::format("{:03}Z", read->time.count() % 1000) == text,
                "what was read is what was written", text);
    }
}

void checkMetricsDate(const std::string& text)
{
    const auto read = dateFromString(text);
    if (!read) {
        return;
    }
    const auto day = floor<days>(*read);
    const year_month_day date(day);
    // A zone may move the moment into a year that no stamp can write.
    if (date.year() >= year(0) && date.year() <= year(9999)) {
        require(dateFromString(written(date, *read - day) + "Z") == read, "it is the same at the meridian", text);
    }
    constexpr std::size_t zoneFrom = 20;
    const auto unmoved = dateFromString(text.substr(0, zoneFrom) + "Z");
    require(unmoved && abs(*read - *unmoved) < 24h, "a zone moves a stamp by less than a day", text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    checkFeedDate(text);
    checkMetricsDate(text);
    // Mutations seldom keep the length: what they did to the digits still counts.
    checkFeedDate(text.substr(0, 23) + "Z");
    return 0;
}
