// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/ManagedSystems/MSListCell.h"
#include "Views/ManagedSystems/MSListViewController.h"
#include "Views/ManagementConsole/MCViewController.h"

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto listFile = "Shared/Views/ManagedSystems/MSListViewController";
constexpr auto consoleFile = "Shared/Views/ManagementConsole/MCViewController";

class ManagedSystemsTest : public ListTest
{
protected:
    CorvelRef addConsole(const std::string& entries)
    {
        return addFetched({{"ManagedSystem", Feed(parse("<feed>" + entries + "</feed>"))}});
    }
    std::shared_ptr<MSListViewController> openList(const CorvelRef& corvel)
    {
        return open<MSListViewController>(corvel);
    }
    static MSListCell cell(MSListViewController& list, int row, TableKind kind = TableKind::Main)
    {
        return list.cellForRowAtIndexPath(kind, {0, row}).value<MSListCell>();
    }
    static QString subtitle(FeedListViewController& list) { return list.header()->subtitleLabel()->text(); }
};

TEST_F(ManagedSystemsTest, AFetchedConsoleIsShownFromItsFeedWithoutAFetch)
{
    // What a fetch would bring is another list.
    demoFeeds()["ManagedSystem"] = "<feed/>";
    const CorvelRef corvel = addConsole(system("zeta", "operating") + "<entry><content><Other/></content></entry>" +
                                        "<entry/>" + system("alpha", "standby"));
    const auto list = openList(corvel);

    ASSERT_TRUE(hasContent(*list));
    EXPECT_EQ(list->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::Search);
    EXPECT_EQ(subtitle(*list), "3 Jul 2026, 10:25");
    ASSERT_EQ(list->tableView()->count(), 2);
    EXPECT_EQ(cell(*list, 0).nameLabel().text, "zeta");
    EXPECT_EQ(cell(*list, 1).nameLabel().text, "alpha");
    EXPECT_EQ(cell(*list, 2).nameLabel().text, "");
    EXPECT_EQ(list->tableView()->rowHeight(), 50);
    EXPECT_EQ(list->tableView()->separatorRight(), 15);
    EXPECT_EQ(list->searchResultsTableView()->separatorRight(), 17);

    const std::vector<LoggedLine> log = lines(listFile);
    EXPECT_THAT(lineNumbers(log), ElementsAre(40, 197));
    EXPECT_EQ(log[1].message, "MSListViewController: Creating Managed System List");
    EXPECT_EQ(log[1].method, "-[MSListViewController createMSList]");
}

TEST_F(ManagedSystemsTest, RowsShowStateAndBadgesByExactWording)
{
    const CorvelRef corvel =
        addConsole(system("good", "operating") + system("lamp", "operating", "true") + system("broken", "error") +
                   system("both", "incomplete - recovery", "true") + system("capital", "Operating", "True") +
                   "<entry><content><ManagedSystem/></content></entry>");
    const auto list = openList(corvel);
    ASSERT_TRUE(hasContent(*list));
    const auto expectRow = [&](int row, const char* badge, double left, Role::State state) {
        const MSListCell shown = cell(*list, row);
        EXPECT_EQ(shown.statusImage().imageName, badge) << row;
        EXPECT_EQ(shown.statusImage().hidden, *badge == 0) << row;
        EXPECT_EQ(shown.nameLeftConstraint(), left) << row;
        EXPECT_EQ(shown.statusLabel().state, state) << row;
    };
    expectRow(0, "", 20, Role::State::Good);
    expectRow(1, "ms_lederror", 45, Role::State::Good);
    expectRow(2, "ms_stateerror", 45, Role::State::BadgedError);
    expectRow(3, "ms_botherror", 45, Role::State::BadgedError);
    expectRow(4, "", 20, Role::State::Idle);
    expectRow(5, "", 20, Role::State::Idle);
    EXPECT_EQ(cell(*list, 4).statusLabel().text, "Operating");
    EXPECT_EQ(cell(*list, 1).accessibleText(), "lamp, operating, attention LED on");
    EXPECT_EQ(cell(*list, 2).accessibleText(), "broken, error");
    EXPECT_EQ(cell(*list, 3).accessibleText(), "both, incomplete - recovery, error, attention LED on");
}
TEST_F(ManagedSystemsTest, AnUnfetchedConsoleIsFetchedAndAnEmptyFeedIsContent)
{
    demoFeeds()["ManagedSystem"] = "<feed><entry><published>yesterday</published></entry></feed>";
    const CorvelRef corvel = addCorvel("Demo", "127.0.0.1", true);
    const auto list = openList(corvel);
    ASSERT_TRUE(hasContent(*list));
    EXPECT_EQ(list->tableView()->count(), 0);
    EXPECT_EQ(subtitle(*list), "");
    EXPECT_EQ(list->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::Search);
    EXPECT_FALSE(corvel->completedFetch);

    // The pull's control ends with the pull; the list's own indicator runs on.
    demoFeeds()["ManagedSystem"] = "<feed>" + system("alpha", "operating") + "</feed>";
    list->refreshControl()->pull();
    EXPECT_FALSE(list->refreshControl()->isRefreshing());
    ASSERT_TRUE(runUntil([&] { return list->fetchingActivityIndicator()->isAnimating(); }));
    EXPECT_TRUE(list->tableView()->isHidden());
    ASSERT_TRUE(hasContent(*list));
    EXPECT_EQ(list->tableView()->count(), 1);

    // The rows are appended: only a fetch clears what stands there.
    list->createMSList();
    EXPECT_EQ(list->MSList().size(), 2U);
    const auto overtaken = list->fetchNewRESTData();
    const auto last = list->fetchNewRESTData();
    ASSERT_TRUE(runUntil([&] { return overtaken.isFulfilled() && last.isFulfilled(); }));
    EXPECT_EQ(list->MSList().size(), 1U);

    // Another screen's fetch failed meanwhile.
    setFeedOfType(*corvel, ObjectType::ManagedSystem, Feed::notAvailable());
    list->tableView()->reloadData();
    EXPECT_EQ(list->tableView()->count(), 0);
}

TEST_F(ManagedSystemsTest, SearchFollowsTheTypingAndTheFetches)
{
    demoFeeds()["ManagedSystem"] = "<feed>" + system("new-abc", "operating") + "</feed>";
    const auto list = openList(
        addConsole(system("ABC-1", "operating") + system("other", "operating") + system("xabcx", "error", "true")));
    ASSERT_TRUE(hasContent(*list));
    int focused = 0;
    QObject::connect(list->searchBar(), &SearchBarOutlet::focusRequested, [&] { ++focused; });
    list->rightBarButton()->tap();
    EXPECT_TRUE(list->searchBar()->isActive());
    EXPECT_EQ(focused, 1);
    list->searchBar()->setText("aBc");
    ASSERT_EQ(list->searchResultsTableView()->count(), 2);
    EXPECT_EQ(cell(*list, 1, TableKind::SearchResults).nameLabel().text, "xabcx");
    EXPECT_EQ(cell(*list, 1, TableKind::SearchResults).nameLabel().match, "aBc");
    EXPECT_EQ(cell(*list, 1).nameLabel().text, "other");
    EXPECT_EQ(cell(*list, 1).nameLabel().match, "");
    EXPECT_EQ(list->tableView()->count(), 3);
    EXPECT_TRUE(list->shouldReloadTableForSearchString("nothing like it"));
    EXPECT_THAT(list->filteredMSList(), IsEmpty());

    list->refreshFromButton();
    ASSERT_TRUE(runUntil([&] { return list->searchResultsTableView()->count() == 1; }));
    EXPECT_EQ(cell(*list, 0, TableKind::SearchResults).nameLabel().text, "new-abc");
    list->searchBar()->cancel();
    EXPECT_FALSE(list->searchBar()->isActive());
    EXPECT_EQ(list->searchBar()->text(), "");
}

TEST_F(ManagedSystemsTest, TheSheetOpensTheSystemOfTheTableThatWasTapped)
{
    const CorvelRef corvel =
        addConsole(system("first", "operating") +
                   system("second", "operating", "false", "<Metadata><Atom><AtomID>id-2</AtomID></Atom></Metadata>"));
    registerScenes(Scenes::managedSystemInfo, Scenes::logicalPartitionsView, Scenes::pcmDataView,
                   Scenes::managedSystemMenu);
    const auto list = openList(corvel);
    ASSERT_TRUE(hasContent(*list));
    std::vector<int> deselected;
    QObject::connect(list->searchResultsTableView(), &TableOutlet::deselected,
                     [&](int row) { deselected.push_back(row); });
    list->showSearchBar();
    list->searchBar()->setText("second");
    const auto choose = [&](int item) {
        list->searchResultsTableView()->select(0);
        list->actionSheet()->choose(item);
    };
    list->searchResultsTableView()->select(0);
    EXPECT_EQ(list->actionSheet()->title(), "Managed System");
    ASSERT_EQ(list->actionSheet()->choices().size(), 4);
    EXPECT_EQ(list->actionSheet()->choices()[1].value<MenuChoice>().title, "Performance Monitoring");
    EXPECT_THAT(deselected, ElementsAre(0));
    list->actionSheet()->choose(3);
    EXPECT_EQ(navigation->depth(), 2);

    choose(0);
    EXPECT_EQ(openedScene, "managedSystemInfo");
    EXPECT_EQ(input<XMLElement>().child("SystemName").text(), "second");
    goBack();
    choose(2);
    EXPECT_EQ(openedScene, "logicalPartitionsView");
    EXPECT_EQ(input<PartitionsInput>().corvel, corvel);
    EXPECT_EQ(input<PartitionsInput>().partitionName, "second");
    goBack();
    choose(1);
    EXPECT_EQ(input<PerformanceInput>().corvel, corvel);
    EXPECT_EQ(input<PerformanceInput>().sysName, "second");
    EXPECT_EQ(input<PerformanceInput>().systemID, "id-2");
    goBack();

    ASSERT_EQ(cell(*list, 0).rightButtons().size(), 1);
    EXPECT_TRUE(list->swipeTableCell(false, 0, 0));
    EXPECT_EQ(openedScene, "managedSystemMenu");
    EXPECT_EQ(input<SystemMenuInput>().corvel, corvel);
    EXPECT_EQ(input<SystemMenuInput>().system.child("SystemName").text(), "first");
    goBack();

    // The list goes while the sheet is up.
    list->tableView()->select(1);
    list->fetchNewRESTData();
    list->actionSheet()->choose(0);
    EXPECT_EQ(navigation->depth(), 2);
}

/// Against a console that refuses.
TEST_F(ManagedSystemsTest, ARefusedFetchIsLoggedAndKeepsTheStoredFeed)
{
    simulator::SimulatorProcess fleet{simulator::Settings{}};
    const CorvelRef corvel = addLoggedOn(fleet);
    const auto list = openList(corvel);
    ASSERT_TRUE(hasContent(*list));
    const auto count = static_cast<std::size_t>(list->tableView()->count());
    EXPECT_EQ(count, feedOfType(*corvel, ObjectType::ManagedSystem).entryCount());
    EXPECT_GT(count, 0U);

    fleet.setFault("refuseFeed:ManagedSystem:0");
    list->refreshControl()->pull();
    ASSERT_TRUE(hasNoContent(*list));
    EXPECT_EQ(feedOfType(*corvel, ObjectType::ManagedSystem).entryCount(), count);
    const LoggedLine error = lines(listFile).back();
    EXPECT_EQ(error.line, 165);
    EXPECT_EQ(error.method, "-[MSListViewController fetchNewRESTData]");
    EXPECT_TRUE(error.message.starts_with("Error: RXPromise") && error.message.ends_with(" - > fetchNewRESTData"))
        << error.message;

    fleet.setFault("refuseFeed:ManagementConsole:0");
    const auto information = open<MCViewController>(corvel);
    ASSERT_TRUE(runUntil([&] { return !information->contentLabel()->isHidden(); }));
    EXPECT_FALSE(information->fetchingActivityIndicator()->isAnimating());
    EXPECT_EQ(information->header()->titleLabel()->text(), "Management Console");
    EXPECT_EQ(information->header()->subtitleLabel()->text(), "");
    EXPECT_EQ(lines(consoleFile).back().line, 121);

    // A screen that is closed while it fetches still stores what comes, and then goes.
    fleet.clearFaults();
    corvel->setRestData(nullptr);
    std::weak_ptr<MSListViewController> closed = openList(corvel);
    navigation.reset();
    EXPECT_TRUE(runUntil(
        [&] { return feedOfType(*corvel, ObjectType::ManagedSystem).entryCount() == count && closed.expired(); }));
}

} // namespace
} // namespace lodestar::testing
