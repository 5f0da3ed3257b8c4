// SPDX-License-Identifier: Apache-2.0
// What the tests of the application cannot tell of the simulated consoles that they stand on: that a run is as the last
// one, that no state is missing, and that a mistyped fault is none.
#include "Simulator/Control.h"
#include "Simulator/FeedWriter.h"

#include <gmock/gmock.h>

#include <set>
#include <stdexcept>

namespace lodestar::simulator
{

TEST(SimulatorInventory, IsTheSameInEveryRunAndLeavesNoStateOut)
{
    const Settings settings{.systems = 24};
    const auto feedOf = [&](std::uint64_t number) {
        return filled(writeFeeds(makeInventory(settings, number), 0)["LogicalPartition"], {"127.0.0.9", "", "", ""});
    };
    EXPECT_EQ(feedOf(0), feedOf(0));
    EXPECT_NE(feedOf(0), feedOf(1));
    const Inventory inventory = makeInventory(settings, 0);
    std::set<std::string> states;
    for (const ManagedSystem& system : inventory.systems) {
        states.insert("system " + system.state);
    }
    for (const Partition& partition : inventory.partitions) {
        states.insert("partition " + partition.state);
    }
    EXPECT_THAT(states,
                testing::IsSupersetOf(
                    {"system operating", "system error", "system incomplete", "system standby", "system power off",
                     "system not available", "system error - terminated", "system Operating", "system alert",
                     "partition running", "partition not activated", "partition error", "partition starting",
                     "partition shutting down", "partition alert", "partition not available", "partition Running"}));
}

TEST(SimulatorProtocol, WhatIsMistypedIsRefused)
{
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{"--consoles"}, {"--consoles", "x"}, {"--consoles", "-1"}, {"--what", "1"}}) {
        EXPECT_THROW(parseArguments(wrong), std::invalid_argument) << wrong.back();
    }
    EventLoop loop;
    Simulator simulator(loop, {.consoles = 2});
    Control control(loop, simulator);
    EXPECT_EQ(control.feed("latency 5\nlat"), "ok\n");
    EXPECT_EQ(control.feed("ency 6\nfault refuseFeed:ManagedSystem:1\nclear\n"), "ok\nok\nok\n");
    EXPECT_EQ(simulator.settings().latency, 6);
    for (const char* wrong : {"nonsense", "fault", "fault x", "fault refuseFeed:Nothing", "fault refuseFeed:Group:1:2",
                              "fault refuseFeed:Group:Quick", "fault logonNotXML:Group", "fault cutBody:html",
                              "fault refuseFeed:2", "stop 2", "start -1", "feed 0 Nothing x"}) {
        EXPECT_THAT(control.feed(std::string(wrong) + "\n"), testing::StartsWith("error ")) << wrong;
    }
}

} // namespace lodestar::simulator
