// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Inventory.h"
#include "Tests/Views/ListFixture.h"
#include "Views/LogicalPartitions/LPDetailViewController.h"
#include "Views/LogicalPartitions/LPListViewController.h"
#include "Views/VIOS/VIOSDetailViewController.h"
#include "Views/VIOS/VIOSViewController.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace lodestar::testing
{
namespace
{

using ::testing::_;
using ::testing::Each;
using ::testing::SizeIs;

constexpr auto Main = TableKind::Main;
constexpr auto Results = TableKind::SearchResults;

std::string named(const std::string& name, const std::string& state = "running")
{
    return "<PartitionName>" + name + "</PartitionName><PartitionState>" + state + "</PartitionState>";
}

/// What a table shows: its sections, each as "title: name, name".
QStringList shown(GroupedListViewController& list, TableKind kind = Main)
{
    QStringList sections;
    for (int section = 0; section < list.numberOfSections(kind); ++section) {
        QStringList names;
        for (int row = 0; row < list.numberOfRowsInSection(kind, section); ++row) {
            names << cellAt<PartitionCell>(list, row, kind, section).nameLabel.text;
        }
        sections << *list.titleForHeaderInSection(kind, section) + ": " + names.join(", ");
    }
    return sections;
}

/// With a demonstration console, whose elements all stand in one group.
class GroupedListsTest : public ListTest
{
protected:
    /// The list of the partitions of one system.
    std::shared_ptr<LPListViewController> openNarrowed(const CorvelRef& corvel, const QString& system)
    {
        const auto list = makeController<LPListViewController>();
        list->setCorvel(corvel);
        list->setPartitionName(system.toStdString());
        push(list);
        EXPECT_TRUE(hasContent(*list));
        return list;
    }
};

TEST_F(GroupedListsTest, PartitionsAndServersShowTheirStateByExactWording)
{
    // A demonstration console has no system to narrow the list to.
    const auto list = openNarrowed(
        addFetched("LogicalPartition",
                   entry("LogicalPartition", named("one") + "<PartitionType>Dedicated</PartitionType>"
                                                            "<ReferenceCode>N140-0020</ReferenceCode>") +
                       entry("LogicalPartition", named("two", "not activated")) + entry("Other", "") + "<entry/>" +
                       entry("LogicalPartition", named("three", "error")) +
                       entry("LogicalPartition", named("four", "Running")) + entry("LogicalPartition", "")),
        "helios-01");
    EXPECT_EQ(list->titleForHeaderInSection(Main, 0), "demo placeholder");
    const std::pair<const char*, Role::State> rows[] = {{"one, Dedicated, running, N140-0020", Role::State::Good},
                                                        {"two, not activated", Role::State::Off},
                                                        {"three, error", Role::State::Error},
                                                        {"four, Running", Role::State::Alert},
                                                        {"", Role::State::Alert}};
    ASSERT_EQ(list->numberOfRowsInSection(Main, 0), std::ssize(rows));
    for (int row = 0; row < std::ssize(rows); ++row) {
        EXPECT_EQ(cellAt<PartitionCell>(*list, row).accessibleText(), rows[row].first);
        EXPECT_EQ(cellAt<PartitionCell>(*list, row).stateLabel.state, rows[row].second) << row;
    }
    EXPECT_EQ(header(*list), "Logical Partitions/3 Jul 2026, 10:25");

    const auto empty = openFetched<LPListViewController>("LogicalPartition", "");
    EXPECT_EQ(empty->tableView()->count(), 0);
    EXPECT_EQ(empty->titleForHeaderInSection(Main, 0), "Demo Corvel");

    const auto servers =
        openFetched<VIOSViewController>("VirtualIOServer", entry("VirtualIOServer", named("a", "not activated")) +
                                                               entry("VirtualIOServer", named("b", "Not activated")));
    EXPECT_THAT(cellAt<PartitionCell>(*servers, 0).leftButtons,
                ElementsAre(SwipeButton{"", Role::Button::Positive, "check", "Check"}));
    EXPECT_THAT(cellAt<PartitionCell>(*servers, 1).leftButtons,
                ElementsAre(SwipeButton{"", Role::Button::Standard, "check", "Check"},
                            SwipeButton{"", Role::Button::Favourite, "fav", "Favourite"}));
}

TEST_F(GroupedListsTest, DetailsShowThreeFactsCutAtAColon)
{
    const auto expectFacts = [&](const std::shared_ptr<PartitionDetailViewController>& detail, const char* title) {
        openDetail("<PartitionName>web:01</PartitionName><PartitionID>7</PartitionID>", detail);
        EXPECT_EQ(detail->title(), title);
        EXPECT_THAT(detail->tableData(), ElementsAre(QStringList({"Name:web:01", "ID:7", "Type:(null)"})));
        EXPECT_EQ(detail->cellForRowAtIndexPath(Main, {0, 0}).value<DetailCell>().detailTextLabel, "web");
        EXPECT_EQ(detail->titleForHeaderInSection(Main, 0), "Main Information");
    };
    expectFacts(makeController<LPDetailViewController>(), "Partition Details");
    EXPECT_THAT(log("Shared/Views/LogicalPartitions/LPDetailViewController"),
                ElementsAre("23 viewDidLoad: LPDetailViewController instantiation"));
    expectFacts(makeController<VIOSDetailViewController>(), "VIOS Details");
    EXPECT_THAT(log("Shared/Views/VIOS/VIOSDetailViewController"),
                ElementsAre("23 viewDidLoad: VIOSDetailViewController instantiation",
                            "47 populatePartitionDetails: VIOSDetailViewController: Fetching main items"));
}

/// With a console that names its systems.
class GroupingTest : public GroupedListsTest
{
protected:
    GroupingTest()
    {
        const simulator::Settings settings{.systems = 3};
        fleet.start(settings);
        corvel = addLoggedOn(fleet);
        for (const simulator::ManagedSystem& system : simulator::makeInventory(settings, 0).systems) {
            links.push_back("https://" + fleet.address(0) + ":12443/rest/api/uom/ManagedSystem/" + system.id);
            systems.push_back(QString::fromStdString(system.name));
        }
        fleet.clearRequests();
    }
    static std::string of(const std::string& link, const std::string& inner, const std::string& type)
    {
        return entry(type, "<AssociatedManagedSystem href=\"" + link + "\"/>" + inner);
    }
    std::string partition(std::size_t system, const char* name) const
    {
        return of(links.at(system), named(name), "LogicalPartition");
    }
    /// The console's list of a feed with these entries.
    template <typename Controller>
    std::shared_ptr<Controller> openStored(const std::string& type, const std::string& entries)
    {
        store(corvel, type, entries);
        auto list = open<Controller>(corvel);
        EXPECT_TRUE(hasContent(*list));
        return list;
    }

    simulator::SimulatorProcess fleet;
    CorvelRef corvel;
    std::vector<std::string> links;
    std::vector<QString> systems;
};

TEST_F(GroupingTest, EveryPartitionAsksForItsSystemInTheThreadThatGroups)
{
    std::atomic<int> onMain = 0;
    const auto listener = VireoLogger::addListener([&](const VireoLogger::Entry& line) {
        if (line.message == "LPListViewController: Fetching stored link" && MainQueue::shared().isCurrent()) {
            ++onMain;
        }
    });
    const auto feed = partition(1, "LPAR01") + partition(0, "web") + partition(1, "MyLpar2") + partition(2, "mail");
    const auto handshakes = fleet.handshakes(0);
    const auto list = openStored<LPListViewController>("LogicalPartition", feed);
    const QStringList grouped = {systems[1] + ": LPAR01, MyLpar2", systems[0] + ": web", systems[2] + ": mail"};
    EXPECT_EQ(shown(*list), grouped);
    EXPECT_THAT(fleet.requests(0), AllOf(SizeIs(4), Each(::testing::Field(&simulator::RecordedRequest::path,
                                                                          HasSubstr("/quick/SystemName")))));
    EXPECT_EQ(onMain, 0);
    EXPECT_LE(fleet.handshakes(0) - handshakes, 1U) << "all over one connection";

    fleet.setFeed(0, "LogicalPartition", "<feed>" + feed + "</feed>");
    list->refreshFromButton();
    EXPECT_EQ(shown(*list), QStringList());
    ASSERT_TRUE(runUntil([&] { return list->numberOfSections(Main) == 3; }));
    EXPECT_EQ(onMain, 4);

    // Of two fetches at once the last is shown. The main thread lives between two look-ups.
    constexpr std::chrono::milliseconds latency(150);
    fleet.setLatency(static_cast<int>(latency.count()));
    fleet.clearRequests();
    auto before = std::chrono::steady_clock::now();
    std::chrono::steady_clock::duration longest{};
    list->fetchNewRESTData();
    const auto last = list->fetchNewRESTData();
    ASSERT_TRUE(runUntil([&] {
        const auto now = std::chrono::steady_clock::now();
        longest = std::max(longest, now - std::exchange(before, now));
        return last.isFulfilled();
    }));
    EXPECT_EQ(shown(*list), grouped);
    EXPECT_LT(longest, 3 * latency);

    // Who closes the list ends its look-ups, on either thread.
    for (const bool fetched : {true, false}) {
        corvel->completedFetch = fetched;
        const auto closed = open<LPListViewController>(corvel);
        fleet.clearRequests();
        const auto lookUps = [&] {
            const auto requests = fleet.requests(0);
            return std::ranges::count_if(requests, [](const auto& each) { return each.path.ends_with("SystemName"); });
        };
        ASSERT_TRUE(runUntil([&] { return lookUps() > 0; }));
        goBack();
        runUntil([] { return false; }, 3 * latency);
        EXPECT_LE(lookUps(), 2);
        EXPECT_TRUE(closed->tableView()->isHidden() || closed->partitions().groupCount() < 3);
    }
}

TEST_F(GroupingTest, WithoutASystemsNamePartitionsAreKeptAndServersLeftOut)
{
    const auto entries = [this](const std::string& type) {
        return of(links[0], named("kept"), type) +
               of("https://" + fleet.address(0) + ":1/nobody", named("silent"), type) + entry(type, named("unlinked")) +
               of("https://" + fleet.address(0) + ":12443/rest/api/uom/ManagedSystem/gone", named("refused"), type);
    };
    const auto partitions = openStored<LPListViewController>("LogicalPartition", entries("LogicalPartition"));
    const QString kept = systems[0] + ": kept";
    EXPECT_EQ(shown(*partitions).mid(0, 2), QStringList({kept, "Unknown system: silent, unlinked"}));
    EXPECT_THAT(shown(*partitions).mid(2).join('/').toStdString(),
                MatchesRegex(".*There is no such property.*: refused"));
    const auto lookUp = [](const char* lines) {
        return std::string(lines) + " seperatePartitionsBySystemFromXML:: LPListViewController: ";
    };
    EXPECT_THAT(log("Shared/Views/LogicalPartitions/LPListViewController"),
                ElementsAre("36 viewDidLoad: LPListViewController instantiation",
                            lookUp("191") + "Seperating partitions", lookUp("194") + "Fetching partition",
                            lookUp("197") + "Fetching stored link", _, _, _, _, _, _));

    const auto servers = openStored<VIOSViewController>("VirtualIOServer", entries("VirtualIOServer"));
    EXPECT_EQ(shown(*servers), QStringList({kept, shown(*partitions)[2]}));
    EXPECT_EQ(servers->ohCrabLabel()->text(), "Nothing in sight");
    EXPECT_THAT(
        log("Shared/Views/VIOS/VIOSViewController"),
        ElementsAre(StartsWith("37 "), StartsWith("189 "), StartsWith("192 "), StartsWith("195 "), _, _, _, _, _, _));
}

TEST_F(GroupingTest, SearchResultsGoByTheirOwnGroupsUnderTheTitlesOfAll)
{
    registerScenes(Scenes::logicalPartitionsDetail);
    const auto list =
        openStored<LPListViewController>("LogicalPartition", partition(0, "web") + partition(1, "LPAR01") +
                                                                 partition(1, "mail") + partition(2, "MyLpar2"));
    searchFor(*list, "lpar");
    EXPECT_EQ(shown(*list, Results), QStringList({systems[0] + ": LPAR01", systems[1] + ": MyLpar2"}));
    EXPECT_EQ(cellAt<PartitionCell>(*list, 0, Results, 1).nameLabel.match, "lpar");
    watch(list->searchResultsTableView());
    list->searchResultsTableView()->select(3);
    ASSERT_EQ(openedScene, "logicalPartitionsDetail");
    EXPECT_EQ(input<XMLElement>().child("PartitionName").text(), "MyLpar2");
    EXPECT_THAT(deselected, ElementsAre(3));
    goBack();
    list->didSelectRowAtIndexPath(Main, {1, 1});
    EXPECT_EQ(input<XMLElement>().child("PartitionName").text(), "mail");
    goBack();

    // A drawn row may be tapped after its list went.
    const auto fetched = list->fetchNewRESTData();
    list->didSelectRowAtIndexPath(Main, {1, 1});
    EXPECT_EQ(navigation->depth(), 2);
    EXPECT_TRUE(runUntil([&] { return fetched.isFulfilled(); }));
}

TEST_F(GroupingTest, ANarrowedListCountsItsSystemAndDrawsTheFirst)
{
    registerScenes(Scenes::logicalPartitionsDetail);
    store(corvel, "LogicalPartition",
          partition(0, "first-1") + partition(1, "own-1") + partition(0, "first-2") + partition(1, "own-2") +
              partition(1, "own-3"));
    const auto list = openNarrowed(corvel, systems[1]);
    // Where the first group has no more rows, the system's own stand.
    EXPECT_EQ(shown(*list), QStringList(systems[1] + ": first-1, first-2, own-3"));
    for (const auto& [row, name] : {std::pair(0, "first-1"), std::pair(2, "own-3")}) {
        list->didSelectRowAtIndexPath(Main, {0, row});
        EXPECT_EQ(input<XMLElement>().child("PartitionName").text(), name);
        goBack();
    }
    searchFor(*list, "-2");
    EXPECT_EQ(shown(*list, Results), QStringList(systems[1] + ": first-2"));
    searchFor(*list, "first");
    EXPECT_EQ(shown(*list, Results), QStringList(systems[1] + ": "));

    EXPECT_EQ(shown(*openNarrowed(corvel, "elsewhere")), QStringList(systems[0] + ": "));
    store(corvel, "LogicalPartition", "");
    EXPECT_EQ(shown(*openNarrowed(corvel, systems[1])), QStringList("Demo Corvel: "));
}

} // namespace
} // namespace lodestar::testing
