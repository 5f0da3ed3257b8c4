// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Inventory.h"
#include "Tests/Views/ListFixture.h"
#include "Views/ResourceGroups/RGListCell.h"
#include "Views/ResourceGroups/RGListViewController.h"

namespace lodestar::testing
{
namespace
{

const std::string memberLink = "<link href='https://127.0.0.1:12443/rest/api/uom/Thing/1'/><other/>";

std::string group(const std::string& name, const std::string& color, const std::string& partitions,
                  const std::string& systems)
{
    return entry("Group", "<GroupName>" + name + "</GroupName><GroupColor>" + color +
                              "</GroupColor><AssociatedLogicalPartitions>" + partitions +
                              "</AssociatedLogicalPartitions><AssociatedManagedSystems>" + systems +
                              "</AssociatedManagedSystems>");
}

using ResourceGroupsTest = ListTest;

QStringList counts(const RGListCell& cell)
{
    return {cell.goodCountLabel.text, cell.offCountLabel.text, cell.alertCountLabel.text, cell.errorCountLabel.text};
}

TEST_F(ResourceGroupsTest, EveryEntryOfTheStoredFeedIsARow)
{
    const auto list = openFetched<RGListViewController>(
        "Group", group("Ledger", "Green", memberLink + memberLink, memberLink) +
                     group("Quarantine", "green", "", memberLink) + "<entry><content><Other/></content></entry>");
    EXPECT_EQ(header(*list), "Resource Groups/3 Jul 2026, 10:25");
    EXPECT_EQ(list->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::None);
    ASSERT_EQ(list->tableView()->count(), 3);
    // A demonstration console answers every look-up with words that are no state.
    EXPECT_EQ(cellAt<RGListCell>(*list, 0).accessibleText(),
              "Ledger, green, 3 Resources, 0 good, 0 off, 0 alert, 0 error");
    EXPECT_EQ(cellAt<RGListCell>(*list, 0).groupTag.imageName, "rg_green");
    EXPECT_EQ(cellAt<RGListCell>(*list, 1).accessibleText(), "Quarantine, 1 Resource, 0 good, 0 off, 0 alert, 0 error");
    EXPECT_EQ(cellAt<RGListCell>(*list, 1).groupTag.imageName, "");
    EXPECT_EQ(cellAt<RGListCell>(*list, 2).resourceCountLabel.text, "0 Resources");
    EXPECT_EQ(cellAt<RGListCell>(*list, 3).groupNameLabel.text, "");

    // The rows are the stored feed's, as it is now.
    setFeedOfType(*list->corvel(), ObjectType::Group, Feed(parse("<feed>" + group("New", "Red", "", "") + "</feed>")));
    list->tableView()->reloadData();
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_EQ(cellAt<RGListCell>(*list, 0).groupNameLabel.text, "New");
    list->resources()["a"] = "running";
    list->refreshControl()->pull();
    EXPECT_TRUE(list->resources().empty());
}

TEST_F(ResourceGroupsTest, StatesAreCountedByTheirExactWording)
{
    RGStateCounts counters;
    for (const char* state : {"running", "operating", "not activated", "alert", "error", "error", "error", "Error"}) {
        counters.add(state);
    }
    RGListCell cell;
    cell.setStateCounts(counters);
    EXPECT_EQ(counts(cell), QStringList({"2", "1", "1", "3"}));
}

TEST_F(ResourceGroupsTest, EachConfigurationOfARowAsksForEveryStateAnew)
{
    simulator::SimulatorProcess fleet{{}};
    const CorvelRef corvel = addLoggedOn(fleet);
    const auto list = open<RGListViewController>(corvel);
    ASSERT_TRUE(hasContent(*list));

    const simulator::Inventory console = simulator::makeInventory({}, 0);
    std::vector<std::string> expected;
    std::map<std::string, int> tally;
    const auto expectAll = [&](const char* link, const auto& objects, const std::vector<std::size_t>& members) {
        for (const std::size_t member : members) {
            expected.push_back(fmt::format(fmt::runtime(link), objects.at(member).id));
            ++tally[objects.at(member).state];
        }
    };
    const simulator::Group& first = console.groups.front();
    expectAll("/rest/api/uom/LogicalPartition/{}/quick/PartitionState", console.partitions, first.partitions);
    expectAll("/rest/api/uom/VirtualIOServer/{}/quick/PartitionState", console.vios, first.vios);
    expectAll("/rest/api/uom/ManagedSystem/{}/quick/State", console.systems, first.systems);
    ASSERT_GT(expected.size(), 8U);
    const QStringList expectedCounts = {QString::number(tally["running"] + tally["operating"]),
                                        QString::number(tally["not activated"] + tally["not available"]),
                                        QString::number(tally["alert"]), QString::number(tally["error"])};
    for (int configuration = 0; configuration < 2; ++configuration) {
        fleet.clearRequests();
        const RGListCell shown = cellAt<RGListCell>(*list, 0);
        EXPECT_EQ(counts(shown), expectedCounts);
        EXPECT_EQ(shown.resourceCountLabel.text, QString::number(expected.size()) + " Resources");
        std::vector<std::string> asked;
        for (const simulator::RecordedRequest& request : fleet.requests(0)) {
            asked.push_back(request.path);
        }
        EXPECT_EQ(asked, expected);
    }

    // A refusal is a text that is no state.
    fleet.setFault("expireSession");
    EXPECT_EQ(counts(cellAt<RGListCell>(*list, 0)), QStringList({"0", "0", "0", "0"}));
    fleet.stopConsole(0);
    EXPECT_EQ(counts(cellAt<RGListCell>(*list, 0)), QStringList({"0", "0", "0", "0"}));
}

} // namespace
} // namespace lodestar::testing
