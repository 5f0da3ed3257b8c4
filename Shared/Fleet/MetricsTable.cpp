// SPDX-License-Identifier: Apache-2.0
#include "Fleet/MetricsTable.h"

#include "Platform/UtcStamp.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <cstdlib>
#include <ctime>

namespace lodestar
{
namespace
{

/// "2026-03-12T18:41:00+09:00": a local time alone would be there twice when clocks are put back.
std::string localStamp(std::time_t second)
{
    std::tm local{};
    if (::localtime_r(&second, &local) == nullptr) {
        return {};
    }
    const long minutes = std::labs(local.tm_gmtoff) / 60;
    return fmt::format("{:%Y-%m-%dT%H:%M:%S}{}{:02}:{:02}", local, local.tm_gmtoff < 0 ? '-' : '+', minutes / 60,
                       minutes % 60);
}

/// The shortest digits that name the figure. What came by single precision is written as such: 262.144 and not
/// 262.1440124511719.
std::string numberCell(double value)
{
    const auto single = static_cast<float>(value);
    return double{single} == value ? fmt::format("{}", single) : fmt::format("{}", value);
}

} // namespace

Table metricsTable(const MetricsTimeline& timeline, MetricsSegment segment)
{
    const bool isMemory = segment == MetricsSegment::Memory;
    Table table;
    table.titles = {"time_utc", "time_local"};
    for (const char* name : {"total", "allocated", "used"}) {
        table.titles.push_back(std::string(name) + (isMemory ? "_memory_gb" : "_processors"));
    }
    table.rows.reserve(timeline.moments.size());
    for (const MetricsMoment& moment : timeline.moments) {
        const std::time_t second = moment.time ? std::time_t{moment.time->time_since_epoch().count()} : 0;
        std::vector<std::string> row = {moment.time ? utcStamp(second) : std::string(),
                                        moment.time ? localStamp(second) : std::string()};
        for (const auto figure : metricsSeries) {
            row.push_back(numberCell(moment.figures.*figure));
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

} // namespace lodestar
