// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Metrics/MetricsTimeline.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace lodestar::testing
{
namespace
{

using std::chrono::seconds;
using ::testing::ElementsAre;

constexpr MetricsDate noon{std::chrono::sys_days(std::chrono::year(2026) / 3 / 12) + std::chrono::hours(12)};

/// A sample whose total is 16 and whose other two figures are given.
MetricsMoment at(int second, double allocated, double used)
{
    return {noon + seconds(second), {16, allocated, used}};
}

std::vector<int> secondsOf(const MetricsTrack& track)
{
    std::vector<int> found;
    for (const MetricsTrack::Point& point : track.points) {
        found.push_back(point.seconds);
    }
    return found;
}

TEST(MetricsTimelineTest, KeepsTheTimeOfEachSampleAndCountsThoseWithoutValues)
{
    const auto sample = [](const char* stamp, const char* available) {
        return std::string(R"({"sampleInfo":{"timeStamp":")") + stamp +
               R"("},"serverUtil":{"processor":{"totalProcUnits":[16],"availableProcUnits":[)" + available +
               R"(],"utilizedProcUnits":[6.5]},"memory":{"totalMem":[1000],"availableMem":[500],"assignedMemToLpars":[400]}}})";
    };
    const auto document = MetricsDocument::parse(
        "[" + sample("2026-03-12T12:00:00.+0000", "4") + "," + sample("2026-03-12T12:03:00.+0000", "null") + "," +
        sample("soon", "5") + "," + sample("2026-03-12T13:06:00.+0100", "6") + "]");
    ASSERT_TRUE(document.ok());
    const MetricsDocument& parsed = document.value();
    const MetricsTimeline processors = timelineOf(parsed.root(), MetricsSegment::Processors);
    ASSERT_EQ(processors.moments.size(), 3U);
    EXPECT_EQ(processors.withoutValues, 1U);
    EXPECT_EQ(processors.moments[0].time, noon);
    EXPECT_EQ(processors.moments[1].time, std::nullopt);
    EXPECT_EQ(processors.moments[2].time, noon + seconds(360));
    EXPECT_EQ(processors.moments[2].figures.allocated, 10);
    EXPECT_EQ(timelineOf(parsed.root(), MetricsSegment::Memory).moments.size(), 4U);

    const MetricsTrack track = trackOf(processors);
    EXPECT_EQ(track.withoutTime, 1U);
    EXPECT_THAT(secondsOf(track), ElementsAre(0, 360));
}

TEST(MetricsTimelineTest, SummaryHasTheFirstTimesOfItsExtremesAndTheMeanOfTheSamples)
{
    const MetricsTimeline timeline{{at(0, 11, 5), at(180, 12, 2.5), at(360, 13, 2.5), at(540, 13, 8), at(720, 12, 8)},
                                   0};
    const auto allocated = summaryOf(timeline, &MetricsFigures::allocated).value();
    EXPECT_EQ(allocated.lowest.value, 11);
    EXPECT_EQ(allocated.lowest.time, noon);
    EXPECT_EQ(allocated.highest.value, 13);
    EXPECT_EQ(allocated.highest.time, noon + seconds(360));
    EXPECT_EQ(allocated.last.value, 12);
    EXPECT_EQ(allocated.last.time, noon + seconds(720));
    EXPECT_DOUBLE_EQ(allocated.mean, 12.2);
    EXPECT_FALSE(allocated.isFlat());
    EXPECT_EQ(summaryOf(timeline, &MetricsFigures::used)->lowest.time, noon + seconds(180));
    EXPECT_TRUE(summaryOf(timeline, &MetricsFigures::total)->isFlat());

    EXPECT_FALSE(summaryOf({}, &MetricsFigures::used));
    const auto single = summaryOf({{at(0, 11, -3)}, 4}, &MetricsFigures::used).value();
    EXPECT_TRUE(single.isFlat());
    EXPECT_EQ(single.mean, -3);

    // A tenth cannot be added up without rounding; equal values still have themselves as mean.
    MetricsTimeline tenths;
    for (int i = 0; i < 24'000; ++i) {
        tenths.moments.push_back(at(i, 0.1, std::numeric_limits<float>::max()));
    }
    EXPECT_EQ(summaryOf(tenths, &MetricsFigures::allocated)->mean, 0.1);
    EXPECT_TRUE(std::isfinite(summaryOf(tenths, &MetricsFigures::used)->mean));
}

TEST(MetricsTimelineTest, TrackRunsForwardAndLeavesOutWhatNoAxisCouldShow)
{
    // The console's clock went back by a minute, one sample came twice, and one has the date of an empty battery.
    MetricsTimeline timeline{{at(0, 1, 0), at(180, 2, 0), at(120, 3, 0), at(300, 4, 0), at(300, 5, 0), at(480, 6, 0)},
                             0};
    timeline.moments.insert(timeline.moments.begin() + 2, {MetricsDate(seconds(5)), {16, 7, 0}});
    timeline.moments.push_back({MetricsDate(std::chrono::sys_days(std::chrono::year(9999) / 12 / 31)), {16, 8, 0}});
    timeline.moments.push_back({std::nullopt, {16, 9, 0}});
    const MetricsTrack track = trackOf(timeline);
    EXPECT_EQ(track.origin, noon);
    EXPECT_THAT(secondsOf(track), ElementsAre(0, 120, 180, 300, 300, 480));
    EXPECT_EQ(track.points[1].figures.allocated, 3);
    EXPECT_EQ(track.points[4].figures.allocated, 5) << "the document's order within a second";
    EXPECT_EQ(track.step, 120);
    EXPECT_EQ(track.withoutTime, 3U);

    const MetricsTrack single = trackOf({{at(60, 1, 0)}, 0});
    EXPECT_EQ(single.origin, noon + seconds(60));
    EXPECT_GT(single.step, 0);
    EXPECT_EQ(trackOf({{{std::nullopt, {}}}, 0}).withoutTime, 1U);
    EXPECT_TRUE(trackOf({}).points.empty());
}

} // namespace
} // namespace lodestar::testing
