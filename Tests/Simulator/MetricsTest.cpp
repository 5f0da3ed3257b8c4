// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Metrics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lodestar::simulator::test
{
namespace
{

using testing::HasSubstr;
using testing::Not;

std::size_t count(const std::string& text, const std::string& part)
{
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

std::string document(const MetricsShape& shape)
{
    const Inventory inventory = makeInventory({}, 0);
    return writeMetricsDocument(inventory, inventory.systems.front(), shape);
}

TEST(SimulatorMetrics, EndWithRoundFiguresWhenTheInventoryWasPublished)
{
    const std::string text = document({});
    EXPECT_EQ(count(text, "\"timeStamp\""), 240U);
    EXPECT_THAT(
        text, HasSubstr(R"("startTimeStamp":"2026-03-11T21:44:17.+0000","endTimeStamp":"2026-03-12T09:41:17.+0000")"));
    const std::string last = text.substr(text.rfind("{\"sampleInfo\""));
    EXPECT_THAT(last, HasSubstr(R"("timeStamp":"2026-03-12T09:41:17.+0000")"));
    EXPECT_THAT(last, HasSubstr(R"("totalProcUnits":[16],"availableProcUnits":[4],"utilizedProcUnits":[6.5])"));
    EXPECT_THAT(last, HasSubstr(R"("totalMem":[262144],"availableMem":[10240],"assignedMemToLpars":[250000])"));
    EXPECT_THAT(text, Not(HasSubstr("null")));
    EXPECT_EQ(text, document({})) << "the same every time";
}

TEST(SimulatorMetrics, ShapesAreAsTheyAreAsked)
{
    EXPECT_THAT(document({.samples = 0}), HasSubstr("\"utilSamples\":[\n]"));
    EXPECT_EQ(count(document({.samples = 1}), "\"timeStamp\""), 1U);
    const std::string unprocessed = document({.samples = 3, .unprocessed = true});
    EXPECT_EQ(count(unprocessed, "Processing did not happen"), 3U);
    EXPECT_EQ(count(unprocessed, "[null]"), 18U);
    const std::string nulls = document({.nulls = true});
    for (const char* key :
         {"availableProcUnits", "utilizedProcUnits", "totalMem", "availableMem", "assignedMemToLpars"}) {
        EXPECT_THAT(nulls, HasSubstr("\"" + std::string(key) + "\":[null]"));
    }
    const std::string large = document({.partitions = 105});
    EXPECT_GT(large.size(), 11'000'000U);
    EXPECT_LT(large.size(), 14'000'000U);
}

} // namespace
} // namespace lodestar::simulator::test
