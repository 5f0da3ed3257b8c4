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
constexpr auto none = std::nullopt;

MetricsDocument parsed(const std::string& text)
{
    auto document = MetricsDocument::parse(text);
    EXPECT_TRUE(document.ok()) << text;
    return document ? document.value() : MetricsDocument();
}

TEST(MetricsDocumentTest, ReadsWhatIsThereAndNothingElse)
{
    const MetricsDocument document = parsed(
        "\xEF\xBB\xBF"
        R"({"a":{"b":[{"c":[1.5,null]},7]},"text":"é\n","true":true,"null":null,"empty":[],"minus":-3,"digits":"12"})");
    const MetricsValue root = document.root();
    const auto list = root.path({"a", "b"}).elements();
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].member("c").first().number(), 1.5);
    EXPECT_TRUE(list[0].member("c").elements().at(1).isNull());
    EXPECT_EQ(list[1].number(), 7);
    EXPECT_EQ(root.member("text").text(), "é\n");
    EXPECT_EQ(root.member("minus").number(), -3);
    EXPECT_TRUE(root.member("null").exists() && root.member("null").isNull());
    for (const MetricsValue& absent :
         {MetricsValue(), root.member("nothing"), root.path({"text", "a"}), root.first(), root.member("empty").first(),
          root.path({"null", "a"}), root.path({"true", "a"})}) {
        EXPECT_FALSE(absent.exists() || absent.isNull() || absent.number() || absent.text() ||
                     absent.member("a").exists());
        EXPECT_TRUE(absent.elements().empty() && !absent.first().exists() && !absent.path({"a", "b"}).exists());
    }
    EXPECT_FALSE(root.member("digits").number() || root.member("true").number() || root.member("null").number());
    EXPECT_TRUE(!root.member("minus").text() && root.member("a").elements().empty());
}

TEST(MetricsDocumentTest, RefusesWhatIsNoDocument)
{
    const auto expectRefusal = [](const std::string& text) {
        const auto document = MetricsDocument::parse(text);
        ASSERT_FALSE(document.ok()) << text.substr(0, 60);
        EXPECT_EQ(document.error().domain, metricsErrorDomain);
        EXPECT_NE(document.error().code, 0);
        EXPECT_FALSE(document.error().localizedDescription.empty());
    };
    for (const char* text :
         {"", " ", "null", "7", R"("text")", "<feed/>", "{", R"({"a":1)", R"({"a":01})", R"({"a":1-2})",
          "{\"a\":\"\xFF\"}", R"({"a":NaN})", R"({"a":123456789012345678901234567890)"}) {
        expectRefusal(text);
    }
    expectRefusal(std::string(5000, '['));
    expectRefusal("[" + std::string(MetricsDocument::largest, ' ') + "]");
}

TEST(MetricsDocumentTest, NumberThatIsTooLargeCostsOnlyItself)
{
    const MetricsDocument document = parsed(
        R"({"t\"1e999":"1e999 \\","a":[123456789012345678901234567890,-98765432109876543210,1e999,-1E+400,1e-999,)" +
        std::string(400, '9') + ",5]}");
    const auto values = document.root().member("a").elements();
    std::vector<std::optional<double>> numbers;
    for (const MetricsValue& value : values) {
        numbers.push_back(value.number());
    }
    EXPECT_THAT(numbers,
                ElementsAre(123456789012345678901234567890.0, -98765432109876543210.0, none, none, 0.0, none, 5.0));
    EXPECT_EQ(document.root().member("t\"1e999").text(), "1e999 \\");
}

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
    const MetricsDocument document = parsed(text + "]");
    return reduceMetrics(document.root(), segment);
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
