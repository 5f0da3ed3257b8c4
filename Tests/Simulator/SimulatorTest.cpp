// SPDX-License-Identifier: Apache-2.0
// What the tests of the application cannot tell of the simulated consoles that they stand on: that a run is as the last
// one, that no state is missing, and that a mistyped fault is none.
#include "Simulator/Control.h"
#include "Simulator/FeedWriter.h"
#include "Simulator/Inventory.h"
#include "Simulator/Protocol.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>

namespace lodestar::simulator
{
namespace
{

using testing::IsSupersetOf;

const BlankValues values = {"127.0.0.9", "corvel-x", "SERIAL7", "id"};

/// The distinct values of a field.
template <typename Kind, typename Value>
std::set<Value> distinct(const std::vector<Kind>& kinds, Value Kind::*field)
{
    std::set<Value> found;
    std::ranges::transform(kinds, std::inserter(found, found.end()), field);
    return found;
}

TEST(SimulatorInventory, FollowsItsSeedAndItsCountsAndLeavesNoStateOut)
{
    Settings settings;
    settings.systems = 24;
    settings.vios = 5;
    settings.groups = 12;
    const auto feedOf = [&](std::uint64_t number) {
        return writeFeeds(makeInventory(settings, number), 0)["LogicalPartition"].filled(values);
    };
    const std::string first = feedOf(0);
    EXPECT_EQ(first, feedOf(0));
    EXPECT_NE(first, feedOf(1));
    const Inventory inventory = makeInventory(settings, 0);
    EXPECT_EQ(inventory.systems.size(), 24U);
    EXPECT_EQ(inventory.vios.size(), 5U);
    EXPECT_EQ(inventory.groups.size(), 12U);
    EXPECT_THAT(distinct(inventory.systems, &ManagedSystem::state),
                IsSupersetOf({"operating", "error", "incomplete", "standby", "power off", "not available",
                              "error - terminated", "Operating", "alert"}));
    EXPECT_THAT(distinct(inventory.partitions, &Partition::state),
                IsSupersetOf({"running", "not activated", "error", "starting", "shutting down", "alert",
                              "not available", "Running"}));
    std::set<std::size_t> sizes;
    for (const Group& group : inventory.groups) {
        sizes.insert(group.partitions.size() + group.vios.size() + group.systems.size());
    }
    EXPECT_THAT(sizes, IsSupersetOf({0U, 1U}));
    settings.seed = 2;
    EXPECT_NE(first, feedOf(0));
}

TEST(SimulatorProtocol, SettingsSurviveTheCommandLineAndWhatIsMistypedIsRefused)
{
    Settings settings;
    settings.consoles = 7;
    settings.systems = 0;
    settings.seed = 18446744073709551615U;
    settings.user = "--consoles";
    settings.password = "a&b <c>";
    settings.gzip = false;
    settings.faults = {"refuseFeed:Group:3", "stallFeed"};
    const Settings back = parseArguments(argumentsOf(settings)).settings;
    EXPECT_EQ(argumentsOf(back), argumentsOf(settings));
    EXPECT_EQ(back.password, settings.password);
    EXPECT_EQ(back.faults, settings.faults);
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{"--consoles"}, {"--consoles", "x"}, {"--consoles", "-1"}, {"--what", "1"}}) {
        EXPECT_THROW(parseArguments(wrong), std::invalid_argument) << wrong.back();
    }
    for (const char* wrong : {"", "nonsense", "refuseFeed:Nothing", "refuseFeed:Group:1:2", "refuseFeed:Group:Quick",
                              "logonNotXML:Group", "cutBody:html"}) {
        EXPECT_THROW(Fault::parse(wrong), std::invalid_argument) << wrong;
    }
    EventLoop loop;
    settings = {};
    settings.consoles = 2;
    Simulator simulator(loop, settings);
    Control control(loop, simulator);
    EXPECT_EQ(control.feed("latency 5\nlat"), "ok\n");
    EXPECT_EQ(control.feed("ency 6\nclear\n"), "ok\nok\n");
    EXPECT_EQ(simulator.settings().latency, 6);
    for (const char* wrong : {"nonsense\n", "fault x\n", "stop 2\n", "start -1\n", "feed 0 Nothing x\n"}) {
        EXPECT_THAT(control.feed(wrong), testing::StartsWith("error ")) << wrong;
    }
}

TEST(SimulatorProtocol, FaultsStrikeWhatTheyName)
{
    using Area = RequestKind::Area;
    const RequestKind group{Area::Feed, "Group"};
    const RequestKind system{Area::Feed, "ManagedSystem"};
    const RequestKind check{Area::SessionCheck, {}};
    const RequestKind logon{Area::Logon, {}};
    const struct {
        const char* fault;
        std::vector<bool> struck; ///< group, system, session check, logon
    } rows[] = {{"cutBody", {true, true, false, false}},
                {"refuseFeed:ManagedSystem:14", {false, true, false, false}},
                {"stallFeed:SessionCheck", {false, false, true, false}},
                {"stallFeed:All", {true, true, true, true}},
                {"logonNotXML:json", {false, false, false, true}}};
    for (const auto& [fault, struck] : rows) {
        const Fault parsed = Fault::parse(fault);
        EXPECT_EQ((std::vector<bool>{strikes(parsed, group), strikes(parsed, system), strikes(parsed, check),
                                     strikes(parsed, logon)}),
                  struck)
            << fault;
    }
    EXPECT_EQ(Fault::parse("refuseFeed:ManagedSystem:14").console, 14);
}

} // namespace
} // namespace lodestar::simulator
