// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Metrics/MetricsReduction.h"

#include <gmock/gmock.h>

#include <array>

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;
using Reason = SkippedSample::Reason;

/// A sample with what stands in the arrays of its six figures.
std::string sample(const std::array<const char*, 3>& processors,
                   const std::array<const char*, 3>& memory = {"1000", "500", "400"})
{
    const auto figure = [](const char* key, const char* value) {
        return "\"" + std::string(key) + "\":[" + value + "]";
    };
    return R"({"serverUtil":{"processor":{)" + figure("totalProcUnits", processors[0]) + "," +
           figure("availableProcUnits", processors[1]) + "," + figure("utilizedProcUnits", processors[2]) +
           R"(},"memory":{)" + figure("totalMem", memory[0]) + "," + figure("availableMem", memory[1]) + "," +
           figure("assignedMemToLpars", memory[2]) + "}}}";
}

const std::string good = sample({"16", "4", "6.5"});

MetricsReduction reduce(const std::vector<std::string>& samples, MetricsSegment segment = MetricsSegment::Processors)
{
    std::string text = "[";
    for (const std::string& each : samples) {
        text += (text.size() > 1 ? "," : "") + each;
    }
    const auto document = MetricsDocument::parse(text + "]");
    EXPECT_TRUE(document.ok()) << text;
    return reduceMetrics(document.value().root(), segment);
}

/// Seconds since 1970, or nothing.
std::optional<std::int64_t> seconds(std::string_view text)
{
    const auto date = dateFromString(text);
    return date ? std::optional<std::int64_t>(date->time_since_epoch().count()) : std::nullopt;
}

TEST(MetricsReductionTest, FiguresHaveTheSevenDigitsOfSinglePrecision)
{
    // In double precision 16.3 - 4.1 is 12.200000000000001, in single 12.1999998.
    EXPECT_EQ(reduce({sample({"16.3", "4.1", "0"})}).points[0].figures.allocated, 12.2);
    EXPECT_EQ(reduce({sample({"100000.125", "0", "0"})}).points[0].figures.allocated, 100000.1);
    EXPECT_EQ(reduce({sample({"16777217", "0", "1"})}).points[0].figures, (MetricsFigures{16777217, 16777220, 1}));
    EXPECT_EQ(reduce({sample({"-1", "3", "-0.5"})}).points[0].figures, (MetricsFigures{-1, -4, -0.5}));
    EXPECT_EQ(reduce({sample({"0", "0", "0"}, {"16777217", "0", "-5"})}, MetricsSegment::Memory).points[0].figures,
              (MetricsFigures{double{16777216.0F / 1000.0F}, 0, double{-5.0F / 1000.0F}}));
}

TEST(MetricsReductionTest, SkippedSamplesLeaveTheirIndexUnusedAndShiftTheLabels)
{
    const std::string noAvailable = sample({"16", "null", "6.5"});
    const MetricsReduction reduction = reduce({good, noAvailable, good, "7", good});
    EXPECT_THAT(reduction.xLabels, ElementsAre("0", "2", "4"));
    ASSERT_EQ(reduction.points.size(), 3U);
    EXPECT_EQ(reduction.points[1].xIndex, 2);
    ASSERT_EQ(reduction.skipped.size(), 2U);
    EXPECT_EQ(reduction.skipped[0].sample, 1U);
    EXPECT_TRUE(reduction.first && reduction.last);

    const MetricsReduction ends = reduce({noAvailable, good, noAvailable});
    EXPECT_FALSE(ends.first || ends.last);
    EXPECT_THAT(ends.xLabels, ElementsAre("1"));
    EXPECT_THAT(reduce({noAvailable}, MetricsSegment::Memory).xLabels, ElementsAre("0")) << "other figures";
}

TEST(MetricsReductionTest, FirstNullIsBlamedBeforeAnythingElse)
{
    struct Case {
        std::string sample;
        MetricsSegment segment;
        std::string_view key;
        Reason reason;
    };
    using enum MetricsSegment;
    const Case cases[] = {
        {sample({"null", "null", "1"}), Processors, "totalProcUnits", Reason::Null},
        {sample({"1", "null", "null"}), Processors, "availableProcUnits", Reason::Null},
        {sample({"\"1\"", "true", "null"}), Processors, "utilizedProcUnits", Reason::Null},
        {sample({"1", "null", "1"}, {"1", "1", "null"}), Memory, "assignedMemToLpars", Reason::Null},
        {R"({"serverUtil":{"processor":{"totalProcUnits":null}}})", Processors, "totalProcUnits", Reason::Null},
        {sample({"16", "\"4\"", "6.5"}), Processors, "availableProcUnits", Reason::NoNumber},
        {sample({"16", "4", "true"}), Processors, "utilizedProcUnits", Reason::NoNumber},
        {sample({"[16]", "{}", ""}), Processors, "totalProcUnits", Reason::NoNumber},
        {sample({"1", "1", "-1e999"}), Processors, "utilizedProcUnits", Reason::NoNumber},
        {sample({"3.4e38", "-3.4e38", "1"}), Processors, "availableProcUnits", Reason::NoNumber},
        {R"({"serverUtil":{"processor":{"totalProcUnits":16,"availableProcUnits":4,"utilizedProcUnits":6}}})",
         Processors, "totalProcUnits", Reason::NoNumber},
        {R"({"serverUtil":[]})", Memory, "totalMem", Reason::NoNumber},
        {"null", Processors, "totalProcUnits", Reason::NoNumber},
    };
    for (const Case& each : cases) {
        const MetricsReduction reduction = reduce({good, each.sample}, each.segment);
        ASSERT_EQ(reduction.skipped.size(), 1U) << each.sample;
        EXPECT_EQ(reduction.skipped[0].key, each.key) << each.sample;
        EXPECT_EQ(reduction.skipped[0].reason, each.reason) << each.sample;
        EXPECT_THAT(reduction.xLabels, ElementsAre("0"));
    }
}

TEST(MetricsDateTest, ReadsAMomentWithItsZone)
{
    constexpr std::int64_t tenUTC = 1425204000;
    for (const char* zone : {"+0000", "-0000", "+00:00", "Z", "GMT", "UTC", "UT", "GMT+00:00", "+0"}) {
        EXPECT_EQ(seconds("2015-03-01T10:00:00." + std::string(zone)), tenUTC) << zone;
    }
    for (const char* zone : {"+0130", "+01:30", "+1:30", "GMT+01:30", "UTC+0130"}) {
        EXPECT_EQ(seconds("2015-03-01T10:00:00." + std::string(zone)), tenUTC - 5400) << zone;
    }
    EXPECT_EQ(seconds("2015-03-01T10:00:00.-8"), tenUTC + 8 * 3600);
    EXPECT_EQ(seconds("2016-02-29T23:59:59.-2359"), 1456790399 + 86340);
    for (const char* text :
         {"", "2015-03-01T10:00:00", "2015-03-01T10:00:00+0000", "2015-03-01 10:00:00.+0000",
          " 2015-03-01T10:00:00.+0000", "2015-3-01T10:00:00.+0000", "2015-02-29T10:00:00.+0000",
          "2015-00-01T10:00:00.+0000", "2015-03-01T24:00:00.+0000", "2015-03-01T23:59:60.Z", "2015-03-01T10:60:00.Z"}) {
        EXPECT_EQ(seconds(text), std::nullopt) << text;
    }
    for (const char* zone : {"", "000Z", "000+0000", "+0000 ", "+2400", "+0060", "+000", "+", "z", "EST", "+01:3",
                             "GMTZ", "+00:00:00", "++1", "+-1", "+ 1"}) {
        EXPECT_EQ(seconds("2015-03-01T10:00:00." + std::string(zone)), std::nullopt) << zone;
    }
}

} // namespace
} // namespace lodestar::testing
