// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/ManagedSystems/MSListCell.h"
#include "Views/ManagedSystems/MSListViewController.h"

namespace lodestar::testing
{

using ManagedSystemsTest = ListTest;

TEST_F(ManagedSystemsTest, RowsShowStateAndBadgesByExactWording)
{
    // What a fetch would bring is another list.
    demoFeeds["ManagedSystem"] = "<feed/>";
    const auto list = openFetched<MSListViewController>(
        "ManagedSystem", system("good", "operating") + "<entry><content><Other/></content></entry><entry/>" +
                             system("lamp", "operating", "true") + system("broken", "error") +
                             system("both", "incomplete - recovery", "true") + system("capital", "Operating", "True") +
                             "<entry><content><ManagedSystem/></content></entry>");
    EXPECT_EQ(header(*list), "Managed Systems/3 Jul 2026, 10:25");
    EXPECT_EQ(list->tableView()->separatorRight(), 15);
    EXPECT_EQ(list->searchResultsTableView()->separatorRight(), 17);
    const struct {
        const char* spoken;
        QString badge;
        Role::State state;
    } rows[] = {{"good, operating", "", Role::State::Good},
                {"lamp, operating, attention LED on", "ms_lederror", Role::State::Good},
                {"broken, error", "ms_stateerror", Role::State::BadgedError},
                {"both, incomplete - recovery, error, attention LED on", "ms_botherror", Role::State::BadgedError},
                {"capital, Operating", "", Role::State::Idle},
                {"", "", Role::State::Idle}};
    ASSERT_EQ(list->tableView()->count(), std::ssize(rows));
    for (int row = 0; row < std::ssize(rows); ++row) {
        SCOPED_TRACE(row);
        const MSListCell shown = cellAt<MSListCell>(*list, row);
        EXPECT_EQ(shown.accessibleText, rows[row].spoken);
        EXPECT_EQ(shown.statusImage.imageName, rows[row].badge);
        EXPECT_EQ(shown.statusImage.hidden, rows[row].badge.isEmpty());
        EXPECT_EQ(shown.nameLeftConstraint, rows[row].badge.isEmpty() ? 20 : 45);
        EXPECT_EQ(shown.statusLabel.state, rows[row].state);
    }
    EXPECT_EQ(cellAt<MSListCell>(*list, 6).nameLabel.text, "");
    EXPECT_THAT(log("Shared/Views/ManagedSystems/MSListViewController"),
                ElementsAre("40 viewDidLoad: MSListViewController instantiation",
                            "197 createMSList: MSListViewController: Creating Managed System List"));
}

TEST_F(ManagedSystemsTest, APullEndsAtOnceAndOnlyAFetchClearsTheRowsWhichAnOpenSearchFollows)
{
    demoFeeds["ManagedSystem"] = "<feed><entry><published>yesterday</published></entry></feed>";
    const CorvelRef corvel = addCorvel("Demo", "127.0.0.1", true);
    const auto list = open<MSListViewController>(corvel);
    ASSERT_TRUE(hasContent(*list));
    EXPECT_EQ(header(*list), "Managed Systems/");
    EXPECT_FALSE(corvel->completedFetch);

    // The pull's control ends with the pull; the list's own indicator runs on.
    demoFeeds["ManagedSystem"] = "<feed>" + system("alpha", "operating") + "</feed>";
    list->refreshControl()->pull();
    EXPECT_FALSE(list->refreshControl()->isRefreshing());
    ASSERT_TRUE(runUntil([&] { return list->fetchingActivityIndicator()->isAnimating(); }));
    ASSERT_TRUE(hasContent(*list));
    EXPECT_EQ(list->tableView()->count(), 1);

    searchFor(*list, "PH");
    EXPECT_EQ(cellAt<MSListCell>(*list, 0, TableKind::SearchResults).nameLabel.text, "alpha");

    // The rows are appended: only a fetch clears what stands there.
    list->createMSList();
    EXPECT_EQ(list->MSList().size(), 2U);
    demoFeeds["ManagedSystem"] = "<feed>" + system("sappho", "operating") + "</feed>";
    const auto overtaken = list->fetchNewRESTData();
    const auto last = list->fetchNewRESTData();
    ASSERT_TRUE(runUntil([&] { return overtaken.isFulfilled() && last.isFulfilled(); }));
    EXPECT_EQ(list->MSList().size(), 1U);
    EXPECT_TRUE(
        runUntil([&] { return cellAt<MSListCell>(*list, 0, TableKind::SearchResults).nameLabel.text == "sappho"; }));

    // Another screen's fetch failed meanwhile.
    setFeedOfType(*corvel, ObjectType::ManagedSystem, Feed::notAvailable());
    list->tableView()->reloadData();
    EXPECT_EQ(list->tableView()->count(), 0);
}

TEST_F(ManagedSystemsTest, TheSheetOpensTheSystemOfTheTableThatWasTapped)
{
    registerScenes(Scenes::managedSystemInfo, Scenes::logicalPartitionsView, Scenes::pcmDataView);
    const auto list = openFetched<MSListViewController>(
        "ManagedSystem",
        system("first", "operating") +
            system("second", "operating", "false", "<Metadata><Atom><AtomID>id-2</AtomID></Atom></Metadata>"));
    TableOutlet* const results = list->searchResultsTableView();
    watch(results);
    searchFor(*list, "second");
    results->select(0);
    EXPECT_EQ(list->actionSheet()->title(), "Managed System");
    EXPECT_THAT(deselected, ElementsAre(0));
    list->actionSheet()->choose(3);
    EXPECT_EQ(navigation->depth(), 2);

    const auto choose = [&](int item) {
        results->select(0);
        list->actionSheet()->choose(item);
        goBack();
    };
    choose(0);
    EXPECT_EQ(openedScene, "managedSystemInfo");
    EXPECT_EQ(input<XMLElement>().child("SystemName").text(), "second");
    choose(2);
    EXPECT_EQ(openedScene, "logicalPartitionsView");
    EXPECT_EQ(input<PartitionsInput>().corvel, list->corvel());
    EXPECT_EQ(input<PartitionsInput>().partitionName, "second");
    choose(1);
    EXPECT_EQ(input<PerformanceInput>().corvel, list->corvel());
    EXPECT_EQ(input<PerformanceInput>().sysName, "second");
    EXPECT_EQ(input<PerformanceInput>().systemID, "id-2");

    // The list goes while the sheet is up.
    list->tableView()->select(1);
    const auto fetched = list->fetchNewRESTData();
    list->actionSheet()->choose(0);
    EXPECT_EQ(navigation->depth(), 2);
    EXPECT_TRUE(runUntil([&] { return fetched.isFulfilled(); }));
}

} // namespace lodestar::testing
