// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Inventory.h"

#include "Simulator/Body.h"
#include "Simulator/FeedWriter.h"
#include "Tests/Simulator/TlsClient.h"
#include "Tests/Simulator/XmlTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace lodestar::simulator
{
namespace
{

using test::XmlTree;
using testing::Each;
using testing::IsSupersetOf;

const BlankValues values = {"127.0.0.9", "corvel-x", "SERIAL7", "id"};

std::string readInSteps(Body& body, std::size_t step)
{
    std::string text;
    std::string part(step, '\0');
    while (const std::size_t n = body.read(part.data(), step)) {
        text.append(part, 0, n);
    }
    return text;
}

TEST(SimulatorInventory, SameSeedSameConsole)
{
    Settings settings;
    const auto feedOf = [&](std::uint64_t number) {
        return writeFeeds(makeInventory(settings, number), 0)["LogicalPartition"].filled(values);
    };
    const std::string first = feedOf(0);
    EXPECT_EQ(first, feedOf(0));
    EXPECT_NE(first, feedOf(1));
    settings.seed = 2;
    EXPECT_NE(first, feedOf(0));
}

TEST(SimulatorInventory, CountsFollowTheSettingsAndTheFeeds)
{
    Settings settings;
    settings.systems = 11;
    settings.partitions = 3;
    settings.vios = 5;
    settings.events = 7;
    settings.groups = 12;
    const Inventory inventory = makeInventory(settings, 4);
    auto feeds = writeFeeds(inventory, 0);
    const auto count = [&](const char* type) {
        return XmlTree(feeds[type].filled(values)).all({"entry", "content", type}).size();
    };
    EXPECT_EQ(count("ManagementConsole"), 1U);
    EXPECT_EQ(count("ManagedSystem"), 11U);
    EXPECT_EQ(count("LogicalPartition"), 33U);
    EXPECT_EQ(count("VirtualIOServer"), 5U);
    EXPECT_EQ(count("ServiceableEvent"), 7U);
    EXPECT_EQ(count("Group"), 12U);

    const InventorySummary summary = summaryOf(inventory);
    const XmlTree systems(feeds["ManagedSystem"].filled(values));
    const auto states = systems.texts({"entry", "content", "ManagedSystem", "State"});
    EXPECT_EQ(std::ranges::count_if(states,
                                    [](const std::string& state) {
                                        return state.find("error") != std::string::npos ||
                                               state.find("incomplete") != std::string::npos;
                                    }),
              summary.systemErrors);
    EXPECT_EQ(std::ranges::count(
                  systems.texts({"entry", "content", "ManagedSystem", "PhysicalSystemAttentionLEDState"}), "true"),
              summary.attentionLEDs);
    EXPECT_GT(summary.systemErrors, 0);
    EXPECT_GT(summary.attentionLEDs, 0);
    settings.systems = settings.events = settings.groups = 0;
    for (const auto& [type, feed] : writeFeeds(makeInventory(settings, 0), 50000)) {
        EXPECT_TRUE(XmlTree(feed.filled(values)).wellFormed()) << type;
    }
}

TEST(SimulatorInventory, EveryStateIsSomewhere)
{
    Settings settings;
    settings.systems = 24;
    const Inventory inventory = makeInventory(settings, 0);
    std::set<std::string> states;
    for (const ManagedSystem& system : inventory.systems) {
        states.insert(system.state);
    }
    EXPECT_THAT(states, IsSupersetOf({"operating", "error", "incomplete", "standby", "power off", "not available",
                                      "error - terminated", "Operating", "alert"}));
    states.clear();
    for (const Partition& partition : inventory.partitions) {
        states.insert(partition.state);
    }
    EXPECT_THAT(states, IsSupersetOf({"running", "not activated", "error", "starting", "shutting down", "alert",
                                      "not available", "Running"}));
    std::set<std::size_t> sizes;
    for (const Group& group : inventory.groups) {
        sizes.insert(group.partitions.size() + group.vios.size() + group.systems.size());
    }
    EXPECT_THAT(sizes, IsSupersetOf({0U, 1U}));
}

TEST(SimulatorInventory, PaddedFeedsHaveTheirSizeAndStayWellFormed)
{
    auto feeds = writeFeeds(makeInventory(Settings(), 0), 200000);
    for (const std::string_view type : feedTypes) {
        const std::string text = feeds[std::string(type)].filled(values);
        EXPECT_GE(text.size(), 200000U) << type;
        EXPECT_LE(text.size(), 205000U) << type;
        EXPECT_TRUE(XmlTree(text).wellFormed()) << type;
    }
}

TEST(SimulatorInventory, BlanksAreFilledInHoweverTheFeedIsRead)
{
    const FeedTemplate feed = writeFeeds(makeInventory(Settings(), 0), 0)["ServiceableEvent"];
    const std::string whole = feed.filled(values);
    EXPECT_EQ(whole.size(), feed.size(values));
    for (const std::size_t step : {1U, 7U, 4096U}) {
        const BodyPtr body = makeBody(feed, values);
        EXPECT_EQ(readInSteps(*body, step), whole) << step;
    }
    const XmlTree tree(whole);
    EXPECT_THAT(tree.texts({"entry", "content", "ServiceableEvent", "reportingConsoleNode", "hostName"}),
                Each("corvel-x"));
    EXPECT_THAT(whole, testing::HasSubstr("https://127.0.0.9:12443/rest/api/sem/ServiceableEvent"));
    EXPECT_EQ(whole.find_first_of(std::string_view("\0\1\2\3\4", 5)), std::string::npos);
}

TEST(SimulatorBody, RepeatsAndChunksWhateverTheSteps)
{
    for (const std::size_t step : {1U, 3U, 1000U}) {
        const BodyPtr repeated = makeRepeatingBody("<", "ab", 5, ">");
        EXPECT_EQ(repeated->size(), 8U);
        EXPECT_EQ(readInSteps(*repeated, step), "<ababab>");
        const BodyPtr bare = makeRepeatingBody("", "ab", 2, "");
        EXPECT_EQ(readInSteps(*bare, step), "ab");
        const BodyPtr chunked = makeChunkedBody(makeBody(std::string("hello")));
        EXPECT_EQ(readInSteps(*chunked, step), "5\r\nhello\r\n0\r\n\r\n");
    }
    const BodyPtr large = makeChunkedBody(makeBody(std::string(8192 + 1, 'x')));
    EXPECT_EQ(readAll(*large), "2000\r\n" + std::string(8192, 'x') + "\r\n1\r\nx\r\n0\r\n\r\n");
}

TEST(SimulatorBody, CompressedFormsUnpack)
{
    const std::string text = "<feed>" + std::string(100000, 'y') + "</feed>";
    EXPECT_EQ(test::gunzipped(gzipped(text)), text);
    const std::string bomb = readAll(*makeGzipBomb(40U << 20U));
    EXPECT_LT(bomb.size(), 400000U);
    // Unpacking checks the sum and the length at the stream's end.
    EXPECT_EQ(test::gunzipped(bomb), std::string(40U << 20U, ' '));
}

} // namespace
} // namespace lodestar::simulator
