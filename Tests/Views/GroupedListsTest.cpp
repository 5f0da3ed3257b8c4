// SPDX-License-Identifier: Apache-2.0
#include "Feedback/VireoLogger.h"
#include "Fleet/Registry.h"
#include "Inventory/ManagedSystem.h"
#include "Platform/Queues/MainQueue.h"
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

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr auto partitionsFile = "Shared/Views/LogicalPartitions/LPListViewController";
constexpr auto serversFile = "Shared/Views/VIOS/VIOSViewController";
constexpr auto Main = TableKind::Main;
constexpr auto Results = TableKind::SearchResults;

std::string named(const std::string& name, const std::string& state = "running")
{
    return "<PartitionName>" + name + "</PartitionName><PartitionState>" + state + "</PartitionState>";
}

PartitionCell cell(GroupedListViewController& list, int section, int row, TableKind kind = Main)
{
    return list.cellForRowAtIndexPath(kind, {section, row}).value<PartitionCell>();
}

/// The names that a table shows, by section.
std::vector<QStringList> names(GroupedListViewController& list, TableKind kind = Main)
{
    std::vector<QStringList> sections;
    for (int section = 0; section < list.numberOfSections(kind); ++section) {
        QStringList& shown = sections.emplace_back();
        for (int row = 0; row < list.numberOfRowsInSection(kind, section); ++row) {
            shown << cell(list, section, row, kind).nameLabel().text;
        }
    }
    return sections;
}

QStringList titles(GroupedListViewController& list, TableKind kind = Main)
{
    QStringList shown;
    for (int section = 0; section < list.numberOfSections(kind); ++section) {
        shown << *list.titleForHeaderInSection(kind, section);
    }
    return shown;
}

void searchFor(FeedListViewController& list, const char* text)
{
    list.showSearchBar();
    list.searchBar()->setText(QString::fromLatin1(text));
}

/// With a demonstration console, whose elements all stand in one group.
class GroupedListsTest : public ListTest
{
protected:
    template <typename Controller>
    std::shared_ptr<Controller> openDemo(const std::string& type, const std::string& entries)
    {
        auto list = open<Controller>(addFetched({{type, Feed(parse("<feed>" + entries + "</feed>"))}}));
        EXPECT_TRUE(hasContent(*list));
        return list;
    }
};

TEST_F(GroupedListsTest, PartitionsShowTheirStateByExactWording)
{
    const auto list = openDemo<LPListViewController>(
        "LogicalPartition", entry("LogicalPartition", named("one") + "<PartitionType>Dedicated</PartitionType>"
                                                                     "<ReferenceCode>N140-0020</ReferenceCode>") +
                                entry("LogicalPartition", named("two", "not activated")) +
                                entry("LogicalPartition", named("three", "error")) +
                                entry("LogicalPartition", named("four", "Running")) + entry("LogicalPartition", ""));
    const Role::State states[] = {Role::State::Good, Role::State::Off, Role::State::Error, Role::State::Alert,
                                  Role::State::Alert};
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(cell(*list, 0, row).stateLabel().state, states[row]) << row;
    }
    EXPECT_EQ(cell(*list, 0, 0).accessibleText(), "one, Dedicated, running, N140-0020");
    EXPECT_EQ(cell(*list, 0, 4).accessibleText(), "");
    EXPECT_EQ(list->tableView()->rowHeight(), 50);
}

TEST_F(GroupedListsTest, ServersUncoverButtonsByTheirState)
{
    const auto list = openDemo<VIOSViewController>(
        "VirtualIOServer",
        entry("VirtualIOServer", named("a", "not activated")) +
            entry("VirtualIOServer", named("b", "Not activated") + "<ReferenceCode>x</ReferenceCode>"));
    EXPECT_THAT(cell(*list, 0, 0).leftButtons(),
                ElementsAre(SwipeButton{"", Role::Button::Positive, "check", "Check"}));
    EXPECT_THAT(cell(*list, 0, 1).leftButtons(),
                ElementsAre(SwipeButton{"", Role::Button::Standard, "check", "Check"},
                            SwipeButton{"", Role::Button::Favourite, "fav", "Favourite"}));
    EXPECT_EQ(cell(*list, 0, 1).stateLabel().state, Role::State::Alert);
}

TEST_F(GroupedListsTest, ADemonstrationConsoleShowsAllItsPartitionsInOneGroup)
{
    const CorvelRef corvel = addFetched(
        {{"LogicalPartition", Feed(parse("<feed>" + entry("LogicalPartition", named("b")) + entry("Other", "") +
                                         "<entry/>" + entry("LogicalPartition", named("a")) + "</feed>"))}});
    const auto list = makeController<LPListViewController>();
    list->setCorvel(corvel);
    list->setPartitionName("helios-01");
    push(list);
    ASSERT_TRUE(hasContent(*list));
    EXPECT_EQ(list->partitionName(), std::nullopt);
    EXPECT_EQ(titles(*list), QStringList("demo placeholder"));
    EXPECT_THAT(names(*list), ElementsAre(QStringList({"b", "a"})));
    EXPECT_EQ(list->header()->subtitleLabel()->text(), "3 Jul 2026, 10:25");
    const std::vector<LoggedLine> log = lines(partitionsFile);
    EXPECT_THAT(lineNumbers(log), ElementsAre(36, 191, 194, 197, 194, 197, 194, 197, 194, 197));
    EXPECT_EQ(log[1].message, "LPListViewController: Seperating partitions");
    EXPECT_EQ(log[3].message, "LPListViewController: Fetching stored link");

    const auto empty = openDemo<LPListViewController>("LogicalPartition", "");
    EXPECT_EQ(empty->tableView()->count(), 0);
    EXPECT_EQ(empty->titleForHeaderInSection(Main, 0), "Demo Corvel");
    EXPECT_EQ(empty->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::Search);
}

TEST_F(GroupedListsTest, DetailsShowThreeFactsCutAtAColon)
{
    const XMLElement facts = parse("<p><PartitionName>web:01</PartitionName><PartitionID>7</PartitionID></p>");
    const auto expectFacts = [&](PartitionDetailViewController& detail, const char* title) {
        EXPECT_EQ(detail.title(), title);
        ASSERT_THAT(detail.tableData(), SizeIs(1));
        EXPECT_EQ(detail.tableData()[0].data, QStringList({"Name:web:01", "ID:7", "Type:(null)"}));
        EXPECT_EQ(detail.cellForRowAtIndexPath(Main, {0, 0}).value<DetailCell>().detailTextLabel, "web");
        EXPECT_EQ(detail.titleForHeaderInSection(Main, 0), "Main Information");
    };
    const auto partition = makeController<LPDetailViewController>();
    partition->setRootXML(facts);
    expectFacts(*push(partition), "Partition Details");
    EXPECT_THAT(lineNumbers(lines("Shared/Views/LogicalPartitions/LPDetailViewController")), ElementsAre(23));
    const auto server = makeController<VIOSDetailViewController>();
    server->setRootXML(facts);
    expectFacts(*push(server), "VIOS Details");
    const auto log = lines("Shared/Views/VIOS/VIOSDetailViewController");
    EXPECT_THAT(lineNumbers(log), ElementsAre(23, 47));
    EXPECT_EQ(log[1].message, "VIOSDetailViewController: Fetching main items");
}

/// With a console that names its systems.
class GroupingTest : public ListTest
{
protected:
    void SetUp() override
    {
        ListTest::SetUp();
        simulator::Settings settings;
        settings.systems = 3;
        fleet.start(settings);
        corvel = addLoggedOn(fleet);
        std::optional<XMLElement> feed;
        const auto keep = [&feed](const XMLElement& root) { feed = root; };
        fetchFeedWithStoredKey(corvel, "ManagedSystem").thenOnMain(keep);
        ASSERT_TRUE(runUntil([&] { return feed.has_value(); }));
        for (const ManagedSystem& system : recordsOf<ManagedSystem>(Feed(*feed))) {
            links.push_back("https://" + fleet.address(0) + ":12443/rest/api/uom/ManagedSystem/" +
                            system.identifier().value());
            systems.push_back(QString::fromStdString(system.name().value()));
        }
        fleet.clearRequests();
    }
    static std::string of(const std::string& link, const std::string& inner, const std::string& type)
    {
        return entry(type, "<AssociatedManagedSystem href=\"" + link + "\"/>" + inner);
    }
    std::string partition(int system, const std::string& inner) const
    {
        return of(links.at(static_cast<std::size_t>(system)), inner, "LogicalPartition");
    }
    void store(const std::string& type, const std::string& entries)
    {
        corvel->setRestData(feeds({{type, Feed(parse("<feed>" + entries + "</feed>"))}}));
        corvel->completedFetch = true;
    }
    template <typename Controller>
    std::shared_ptr<Controller> openLoaded()
    {
        auto list = open<Controller>(corvel);
        EXPECT_TRUE(hasContent(*list));
        return list;
    }
    std::shared_ptr<LPListViewController> openNarrowed(const QString& system)
    {
        const auto list = makeController<LPListViewController>();
        list->setCorvel(corvel);
        list->setPartitionName(system.toStdString());
        push(list);
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
    const std::string feed = partition(1, named("LPAR01")) + partition(0, named("web")) +
                             partition(1, named("MyLpar2", "error")) + partition(2, named("mail"));
    store("LogicalPartition", feed);
    const auto list = openLoaded<LPListViewController>();
    EXPECT_EQ(titles(*list), QStringList({systems[1], systems[0], systems[2]}));
    EXPECT_THAT(names(*list), ElementsAre(QStringList({"LPAR01", "MyLpar2"}), QStringList("web"), QStringList("mail")));
    EXPECT_THAT(fleet.requests(0), AllOf(SizeIs(4), Each(::testing::Field(&simulator::RecordedRequest::path,
                                                                          HasSubstr("/quick/SystemName")))));
    EXPECT_EQ(onMain, 0);

    fleet.setFeed(0, "LogicalPartition", "<feed>" + feed + "</feed>");
    list->refreshFromButton();
    EXPECT_THAT(names(*list), SizeIs(0));
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
    EXPECT_THAT(names(*list), ElementsAre(QStringList({"LPAR01", "MyLpar2"}), QStringList("web"), QStringList("mail")));
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

TEST_F(GroupingTest, AListLooksAllItsSystemsUpOverOneConnection)
{
    constexpr int count = 200;
    std::string feed;
    for (int i = 0; i < count; ++i) {
        feed += partition(i % 3, named("LPAR" + std::to_string(i)));
    }
    store("LogicalPartition", feed);
    const auto before = fleet.handshakes(0);
    const auto list = openLoaded<LPListViewController>();
    EXPECT_THAT(fleet.requests(0), SizeIs(count));
    EXPECT_LE(fleet.handshakes(0) - before, 1U);
    // On the main thread after a fetch, whose own connection is another.
    fleet.setFeed(0, "LogicalPartition", "<feed>" + feed + "</feed>");
    list->refreshFromButton();
    ASSERT_TRUE(runUntil([&] { return list->numberOfSections(Main) == 3; }));
    EXPECT_GE(fleet.requests(0).size(), 2U * count);
    EXPECT_LE(fleet.handshakes(0) - before, 3U);
}

TEST_F(GroupingTest, WithoutASystemsNamePartitionsAreKeptAndServersLeftOut)
{
    for (const std::string type : {"LogicalPartition", "VirtualIOServer"}) {
        store(type,
              of(links[0], named("kept"), type) +
                  of("https://" + fleet.address(0) + ":1/nobody", named("silent"), type) +
                  entry(type, named("unlinked")) +
                  of("https://" + fleet.address(0) + ":12443/rest/api/uom/ManagedSystem/gone", named("refused"), type));
        if (type == "LogicalPartition") {
            const auto list = openLoaded<LPListViewController>();
            EXPECT_THAT(names(*list),
                        ElementsAre(QStringList("kept"), QStringList({"silent", "unlinked"}), QStringList("refused")));
            EXPECT_EQ(titles(*list)[1], "Unknown system");
            EXPECT_THAT(titles(*list)[2].toStdString(), HasSubstr("There is no such property."));
        } else {
            const auto list = openLoaded<VIOSViewController>();
            EXPECT_THAT(names(*list), ElementsAre(QStringList("kept"), QStringList("refused")));
            EXPECT_EQ(list->ohCrabLabel()->text(), "Nothing in sight");
            const std::vector<LoggedLine> log = lines(serversFile);
            EXPECT_THAT(lineNumbers(log), ElementsAre(37, 189, 192, 195, 192, 195, 192, 195, 192, 195));
            EXPECT_EQ(log[1].message, "VIOSViewController: Seperating partitions");
        }
    }
}

TEST_F(GroupingTest, SearchResultsGoByTheirOwnGroupsUnderTheTitlesOfAll)
{
    registerScenes(Scenes::logicalPartitionsDetail);
    store("LogicalPartition", partition(0, named("web")) + partition(1, named("LPAR01")) + partition(1, named("mail")) +
                                  partition(2, named("MyLpar2")));
    const auto list = openLoaded<LPListViewController>();
    searchFor(*list, "lpar");
    EXPECT_THAT(names(*list, Results), ElementsAre(QStringList("LPAR01"), QStringList("MyLpar2")));
    EXPECT_EQ(titles(*list, Results), QStringList({systems[0], systems[1]}));
    EXPECT_EQ(cell(*list, 1, 0, Results).nameLabel().match, "lpar");
    std::vector<int> deselected;
    QObject::connect(list->searchResultsTableView(), &TableOutlet::deselected,
                     [&](int row) { deselected.push_back(row); });
    list->searchResultsTableView()->select(3);
    ASSERT_EQ(openedScene, "logicalPartitionsDetail");
    EXPECT_EQ(input<XMLElement>().child("PartitionName").text(), "MyLpar2");
    EXPECT_THAT(deselected, ElementsAre(3));
    goBack();
    list->didSelectRowAtIndexPath(Main, {1, 1});
    EXPECT_EQ(input<XMLElement>().child("PartitionName").text(), "mail");
    goBack();

    // A drawn row may be tapped after its list went.
    list->fetchNewRESTData();
    list->didSelectRowAtIndexPath(Main, {1, 1});
    EXPECT_EQ(navigation->depth(), 2);
}

TEST_F(GroupingTest, ANarrowedListCountsItsSystemAndDrawsTheFirst)
{
    registerScenes(Scenes::logicalPartitionsDetail);
    store("LogicalPartition", partition(0, named("first-1")) + partition(1, named("own-1")) +
                                  partition(0, named("first-2")) + partition(1, named("own-2")) +
                                  partition(1, named("own-3")));
    const auto list = openNarrowed(systems[1]);
    EXPECT_EQ(titles(*list), QStringList(systems[1]));
    // Where the first group has no more rows, the system's own stand.
    EXPECT_THAT(names(*list), ElementsAre(QStringList({"first-1", "first-2", "own-3"})));
    for (const auto& [row, name] : {std::pair(0, "first-1"), std::pair(2, "own-3")}) {
        list->didSelectRowAtIndexPath(Main, {0, row});
        EXPECT_EQ(input<XMLElement>().child("PartitionName").text(), name);
        goBack();
    }
    searchFor(*list, "-2");
    EXPECT_THAT(names(*list, Results), ElementsAre(QStringList("first-2")));
    EXPECT_EQ(titles(*list, Results), QStringList(systems[1]));
    searchFor(*list, "first");
    EXPECT_THAT(names(*list, Results), ElementsAre(QStringList()));

    const auto unknown = openNarrowed("elsewhere");
    EXPECT_THAT(names(*unknown), ElementsAre(QStringList()));
    EXPECT_EQ(titles(*unknown), QStringList(systems[0]));
    store("LogicalPartition", "");
    EXPECT_EQ(titles(*openNarrowed(systems[1])), QStringList("Demo Corvel"));
}

TEST_F(GroupingTest, ARefusedFetchShowsBothTextsAndIsLogged)
{
    fleet.setFault("refuseFeed:All:0");
    const auto servers = open<VIOSViewController>(corvel);
    ASSERT_TRUE(hasNoContent(*servers));
    EXPECT_FALSE(servers->ohCrabLabel()->isHidden());
    EXPECT_EQ(lines(serversFile).back().line, 158);
    EXPECT_THAT(lines(serversFile).back().message, AllOf(StartsWith("Error: "), HasSubstr(" - > fetchNewRESTData")));
    fleet.clearFaults();
    servers->rightBarButton()->tap();
    ASSERT_TRUE(hasContent(*servers));
    EXPECT_TRUE(servers->ohCrabLabel()->isHidden());
}

} // namespace
} // namespace lodestar::testing
