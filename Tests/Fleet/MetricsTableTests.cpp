// SPDX-License-Identifier: Apache-2.0
#include "Fleet/MetricsTable.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <ctime>

namespace lodestar::test
{
namespace
{

using testing::ElementsAre;

TEST(MetricsTableTest, WritesBothTimesAlsoWhereClocksArePutBackAndFiguresAsTheyCame)
{
    ::setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    ::tzset();
    const MetricsDate first{std::chrono::sys_days(std::chrono::year(2026) / 10 / 25) + std::chrono::minutes(30)};
    const MetricsFigures figures{double{262144.0F / 1000.0F}, 12.2, 6.5004};
    const MetricsTimeline timeline{
        {{first, figures}, {first + std::chrono::hours(1), figures}, {std::nullopt, {16, -4, 1e-7}}}, 2};
    const Table table = metricsTable(timeline, MetricsSegment::Memory);
    EXPECT_THAT(table.titles,
                ElementsAre("time_utc", "time_local", "total_memory_gb", "allocated_memory_gb", "used_memory_gb"));
    EXPECT_THAT(
        table.rows,
        ElementsAre(ElementsAre("2026-10-25T00:30:00Z", "2026-10-25T02:30:00+02:00", "262.144", "12.2", "6.5004"),
                    ElementsAre("2026-10-25T01:30:00Z", "2026-10-25T02:30:00+01:00", "262.144", "12.2", "6.5004"),
                    ElementsAre("", "", "16", "-4", "1e-07")));
    EXPECT_EQ(metricsTable({}, MetricsSegment::Processors).titles.back(), "used_processors");

    ::setenv("TZ", "NST3:30", 1);
    ::tzset();
    EXPECT_EQ(metricsTable(timeline, MetricsSegment::Memory).rows[0][1], "2026-10-24T21:00:00-03:30");
    ::unsetenv("TZ");
    ::tzset();
}

} // namespace
} // namespace lodestar::test
