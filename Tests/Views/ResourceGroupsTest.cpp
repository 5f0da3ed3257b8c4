// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"
#include "Inventory/ResourceGroup.h"
#include "Tests/Views/ListFixture.h"
#include "Views/ResourceGroups/RGListCell.h"
#include "Views/ResourceGroups/RGListViewController.h"

namespace lodestar::testing
{
namespace
{

std::string group(const std::string& name, const std::string& color, int partitions, int systems = 0)
{
    const auto links = [](const std::string& list, int count) {
        std::string xml = "<" + list + ">";
        for (int i = 0; i < count; ++i) {
            xml += "<link href='https://127.0.0.1:12443/rest/api/uom/Thing/" + std::to_string(i) + "'/>";
        }
        return xml + "<other/></" + list + ">";
    };
    return entry("Group", "<GroupName>" + name + "</GroupName><GroupColor>" + color + "</GroupColor>" +
                              links("AssociatedLogicalPartitions", partitions) +
                              links("AssociatedManagedSystems", systems));
}

using ResourceGroupsTest = ListTest;

QStringList counts(const RGListCell& cell)
{
    return {cell.goodCountLabel.text, cell.offCountLabel.text, cell.alertCountLabel.text, cell.errorCountLabel.text};
}

TEST_F(ResourceGroupsTest, EveryEntryOfTheStoredFeedIsARow)
{
    const auto list =
        openFetched<RGListViewController>("Group", group("Ledger", "Green", 2, 1) + group("Quarantine", "Teal", 0, 1) +
                                                       "<entry><content><Other/></content></entry>");
    EXPECT_EQ(subtitle(*list), "3 Jul 2026, 10:25");
    EXPECT_EQ(list->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::None);
    EXPECT_EQ(list->tableView()->rowHeight(), 75);
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
    setFeedOfType(*list->corvel(), ObjectType::Group, Feed(parse("<feed>" + group("New", "Red", 0) + "</feed>")));
    list->tableView()->reloadData();
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_EQ(cellAt<RGListCell>(*list, 0).groupNameLabel.text, "New");
    list->resources()["a"] = "running";
    list->refreshControl()->pull();
    EXPECT_TRUE(list->resources().empty());
}

TEST_F(ResourceGroupsTest, StatesAndColoursAreTakenByTheirExactWording)
{
    RGStateCounts counters;
    for (const char* state : {"running", "operating", "not activated", "alert", "error", "error", "error", "Error"}) {
        counters.add(state);
    }
    RGListCell cell;
    cell.setStateCounts(counters);
    EXPECT_EQ(counts(cell), QStringList({"2", "1", "1", "3"}));
    cell.setGroupColor("Purple");
    for (const char* unknown : {"purple", "Teal", ""}) {
        cell.setGroupColor(unknown);
        EXPECT_EQ(cell.groupTag.imageName, "rg_purple") << unknown;
    }
}

/// The states that a console's feeds hold, by the identifier that links end in.
std::map<std::string, std::string> statesOf(const Corvel& corvel)
{
    std::map<std::string, std::string> states;
    for (const auto& [type, element] : std::map<std::string_view, const char*>{{"LogicalPartition", "PartitionState"},
                                                                               {"VirtualIOServer", "PartitionState"},
                                                                               {"ManagedSystem", "State"}}) {
        for (const XMLElement& entry : feedOfType(corvel, type).entries()) {
            const XMLElement object = entry.path({"content", type});
            states[object.path({"Metadata", "Atom", "AtomID"}).text().value()] = object.child(element).text().value();
        }
    }
    return states;
}

TEST_F(ResourceGroupsTest, EachConfigurationOfARowAsksForEveryStateAnew)
{
    simulator::SimulatorProcess fleet{simulator::Settings{}};
    const CorvelRef corvel = addLoggedOn(fleet);
    const auto fetched = fetchInventory(corvel);
    ASSERT_TRUE(runUntil([&] { return fetched.isFulfilled(); }));
    const auto list = open<RGListViewController>(corvel);
    ASSERT_TRUE(hasContent(*list));

    const std::map<std::string, std::string> states = statesOf(*corvel);
    const auto groups = recordsOf<ResourceGroup>(feedOfType(*corvel, ObjectType::Group));
    std::vector<std::string> expected;
    std::map<std::string, int> tally;
    for (const ResourceGroup::Member& member : groups.at(0).members()) {
        const std::string link = ResourceGroup::stateLinkOf(member).value();
        expected.push_back(link.substr(link.find("/rest/")));
        const std::string object = link.substr(0, link.find("/quick/"));
        ++tally[states.at(object.substr(object.rfind('/') + 1))];
    }
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
