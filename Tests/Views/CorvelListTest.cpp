// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/Corvels/CorvelListCell.h"
#include "Views/Corvels/CorvelListViewController.h"

#include <thread>

namespace lodestar::testing
{
namespace
{

using ::testing::Contains;

constexpr auto listFile = "Shared/Views/Corvels/CorvelListViewController";

class CorvelListTest : public ListTest
{
protected:
    void load()
    {
        list = makeController<CorvelListViewController>();
        navigation = makeController<NavigationController>(list);
        navigation->loadViewIfNeeded();
        navigation->beginAppearance();
    }
    CorvelListCell cell(int row) const { return cellAt<CorvelListCell>(*list, row); }

    std::shared_ptr<CorvelListViewController> list;
};

TEST_F(CorvelListTest, FirstLaunchSeedsTheDemoConsoleOnceAndAPullFetchesItAnew)
{
    UserDefaults::standard().setBool(false, "initialLoad");
    load();
    list->introDidFinish();
    const std::vector<CorvelRef> corvels = RESTHandler::sharedInstance().corvelList();
    ASSERT_EQ(corvels.size(), 1U);
    const CorvelRef demo = corvels.front();
    EXPECT_EQ(demo->name(), "Demo Corvel");
    EXPECT_EQ(demo->address(), "127.0.0.1");
    EXPECT_EQ(demo->demo(), 1);
    EXPECT_EQ(demo->username(), std::nullopt);
    EXPECT_TRUE(UserDefaults::standard().boolForKey("initialLoad"));
    EXPECT_FALSE(demo->completedFetch || list->tableView()->isHidden());
    EXPECT_EQ(list->title(), "My Corvels");
    EXPECT_TRUE(list->backTitle().isEmpty() && !list->backTitle().isNull());

    // One refresh is of the list that loads, the other of the tour that ends.
    const std::string line = "dataRefresh: CorvelListViewController: ";
    ASSERT_TRUE(runUntil([&] { return unnumberedLog(listFile).size() == 7; }));
    EXPECT_THAT(unnumberedLog(listFile),
                ElementsAre("viewDidLoad: CorvelListViewController instantiation", line + "Refreshing data from REST",
                            line + "Refreshing data from REST", line + "Parsing mcvi", line + "Parsing version",
                            line + "Parsing mcvi", line + "Parsing version"));
    EXPECT_TRUE(demo->completedFetch);
    EXPECT_EQ(demo->version(), "V3R2.4.0.SP1");
    EXPECT_FALSE(StoreStack::shared().managedObjectContext().hasChanges());

    demoFeeds["ServiceableEvent"] = "<feed><entry/></feed>";
    list->refreshControl()->pull();
    EXPECT_FALSE(list->refreshControl()->isRefreshing());
    EXPECT_EQ(demo->numMSLEDs, 1) << "values stay until others come";
    EXPECT_TRUE(cell(0).statusActivityIndicator.animating);
    // A list that is closed meanwhile still stores what it fetches, and then goes.
    const std::weak_ptr<CorvelListViewController> weak = list;
    navigation.reset();
    list.reset();
    ASSERT_TRUE(runUntil([&] { return demo->completedFetch.load(); }));
    EXPECT_EQ(feedOfType(*demo, ObjectType::ServiceableEvent).entryCount(), 1U);
    EXPECT_TRUE(runUntil([&] { return weak.expired(); }));

    // The user deletes it: it does not come back.
    for (int loads = 0; loads < 2; ++loads) {
        load();
        list->swipeTableCell(0, 0);
        EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
        EXPECT_TRUE(list->tableView()->isHidden());
    }
}

TEST_F(CorvelListTest, RowsShowSpinnersOrValuesAndOnlyAFetchedOnlineConsoleOpensItsOverview)
{
    registerScenes(Scenes::corvelTasksViewController);
    load();
    watch(list->tableView());
    const CorvelRef corvel = addCorvel("Harbour A", "corvel-a.harbour.example");
    corvel->isOnline = true;
    list->tableView()->reloadData();
    list->tableView()->select(0);
    EXPECT_FALSE(openedWith.has_value());
    const CorvelListCell fetching = cell(0);
    EXPECT_EQ(fetching.addressLabel.text, "corvel-a.harbour.example");
    EXPECT_EQ(fetching.versionLabel.text, "(null)");
    EXPECT_TRUE(fetching.statusActivityIndicator.animating && fetching.attentionActivityIndicator.animating &&
                fetching.eventsActivityIndicator.animating);
    EXPECT_TRUE(fetching.statusLabel.hidden && fetching.attentionLabel.hidden && fetching.eventsLabel.hidden &&
                fetching.selectionArrow.hidden);
    EXPECT_FALSE(fetching.highlights);
    EXPECT_EQ(fetching.accessibleText(), "Harbour A, updating");

    corvel->completedFetch = true;
    corvel->numMSLEDs = 2;
    const struct {
        bool isOnline;
        int errors;
        Feed events;
        const char* version;
        const char* shownVersion;
        const char* spoken;
        Role::State state;
    } looks[] = {
        {false, 1, Feed::notAvailable(), "V3R2", "V3R2", "Offline, attention 2, events 0", Role::State::Offline},
        {true, 1, Feed::notAvailable(), "V3R2", "V3R2", "Error, attention 2, events 0", Role::State::Error},
        {true, 0, Feed(parse("<feed><entry/><x/><entry/><entry/></feed>")), "V(null)R(null).(null).(null).(null)",
         "N/A", "Good, attention 2, events 3", Role::State::Good}};
    for (const auto& look : looks) {
        SCOPED_TRACE(look.spoken);
        openedWith.reset();
        deselected.clear();
        corvel->isOnline = look.isOnline;
        corvel->numMSErrors = look.errors;
        corvel->setVersion(look.version);
        corvel->setRestData(feeds({{"ServiceableEvent", look.events}}));
        const CorvelListCell shown = cell(0);
        EXPECT_EQ(shown.accessibleText(), QString("Harbour A, ") + look.spoken);
        EXPECT_EQ(shown.versionLabel.text, look.shownVersion);
        EXPECT_EQ(shown.statusLabel.state, look.state);
        EXPECT_FALSE(shown.statusActivityIndicator.animating || shown.statusLabel.hidden);
        EXPECT_EQ(shown.selectionArrow.hidden, !look.isOnline);
        EXPECT_EQ(shown.highlights, look.isOnline);
        list->tableView()->select(0);
        EXPECT_EQ(openedWith.has_value() && input<CorvelRef>() == corvel, look.isOnline);
        EXPECT_EQ(deselected.size(), look.isOnline ? 1U : 0U);
    }
    EXPECT_THAT(cell(0).rightButtons, ElementsAre(SwipeButton{"Delete", Role::Button::Destructive},
                                                  SwipeButton{"Edit", Role::Button::Quiet}));
}

TEST_F(CorvelListTest, DeleteTakesTheRecordItsKeyAndItsRowAndEditShowsTheConsoleInASheet)
{
    const CorvelRef kept = addCorvel("Harbour A", "a.example", true);
    const CorvelRef deleted = addCorvel("Harbour B", "b.example", true);
    load();
    UserDefaults::standard().setString("key", "a.example");
    UserDefaults::standard().setString("key", "b.example");
    EXPECT_TRUE(list->swipeTableCell(1, 2));
    EXPECT_TRUE(list->swipeTableCell(7, 0));
    EXPECT_EQ(list->tableView()->count(), 2);
    EXPECT_TRUE(list->swipeTableCell(1, 0));
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_EQ(cell(0).nameLabel.text, "Harbour A");
    EXPECT_EQ(UserDefaults::standard().stringForKey("a.example"), "key");
    EXPECT_EQ(UserDefaults::standard().stringForKey("b.example"), std::nullopt);

    // It stays gone although its refresh was under way, whose logon leaves a key behind.
    UserDefaults::standard().setString("late key", "b.example");
    ASSERT_TRUE(runUntil([&] { return kept->completedFetch && !UserDefaults::standard().stringForKey("b.example"); }));
    EXPECT_EQ(deleted->version(), std::nullopt);
    EXPECT_FALSE(list->tableView()->isHidden());

    int closedSwipes = 0;
    QObject::connect(list->tableView(), &TableOutlet::closeSwipesRequested, [&] { ++closedSwipes; });
    EXPECT_TRUE(list->swipeTableCell(0, 1));
    EXPECT_EQ(closedSwipes, 1);
    const SemiModalPresentation* const sheet = list->semiModal();
    ASSERT_NE(sheet, nullptr);
    EXPECT_FALSE(sheet->pushParentBack());
    EXPECT_EQ(dynamic_cast<DeltaCorvelViewController&>(*sheet->controller()).corvel()->name(), "Harbour A");
    navigation->endAppearance();
    list->keyboardWillShow(300);
    EXPECT_EQ(sheet->height(), 224) << "a list out of sight leaves it as it is";
    EXPECT_THAT(storedNames(), ElementsAre("Harbour A"));
}

/// Against real consoles.
class FleetTest : public CorvelListTest
{
protected:
    FleetTest() { fleet.start({.consoles = 3}); }
    static bool allFetched()
    {
        const auto& consoles = RESTHandler::sharedInstance().corvelList();
        const auto isFetched = [](const CorvelRef& each) { return each->completedFetch.load(); };
        return runUntil([&] { return std::ranges::all_of(consoles, isFetched); });
    }

    simulator::SimulatorProcess fleet;
};

TEST_F(FleetTest, EachConsoleIsJudgedByItsLogonAndCountedByItsFeeds)
{
    addConsole(fleet, 0, "Good");
    addConsole(fleet, 1, "Refused");
    addConsole(fleet, 2, "No feeds");
    fleet.setFault("refuseLogon:1");
    fleet.setFault("refuseFeed:2");
    load();
    ASSERT_TRUE(allFetched());

    const simulator::InventorySummary summary = fleet.summary(0);
    const QString counted = QString(", attention %1, events %2").arg(summary.attentionLEDs).arg(summary.events);
    EXPECT_EQ(cell(0).accessibleText(), (summary.systemErrors > 0 ? "Good, Error" : "Good, Good") + counted);
    EXPECT_THAT(cell(0).versionLabel.text.toStdString(), MatchesRegex("V[0-9]+R.+"));
    EXPECT_EQ(cell(1).statusLabel.text, "Offline");
    EXPECT_EQ(cell(1).versionLabel.text, "(null)");
    EXPECT_EQ(cell(2).accessibleText(), "No feeds, Good, attention 0, events 0");
    EXPECT_EQ(cell(2).versionLabel.text, "N/A");
    EXPECT_THAT(unnumberedLog(listFile), Contains(MatchesRegex("dataRefresh: Error: .+ - > dataRefresh")).Times(1));

    // The console comes back, and the one that was there goes: values stay, the state tells.
    fleet.clearFaults();
    fleet.stopConsole(0);
    list->refreshControl()->pull();
    ASSERT_TRUE(allFetched());
    EXPECT_TRUE(cell(0).accessibleText().startsWith(QString("Good, Offline, attention %1").arg(summary.attentionLEDs)));
    EXPECT_NE(cell(1).statusLabel.text, "Offline");
}

TEST_F(FleetTest, ARefreshWhoseFeedsAPullHasResetStoresNoVersion)
{
    const CorvelRef corvel = addConsole(fleet, 0, "Harbour A");
    load();
    // What the refresh does off the main thread comes, and what it does here has to wait.
    for (int i = 0; i < 3000 && corvel->restData() == nullptr; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ASSERT_NE(corvel->restData(), nullptr);
    fleet.stopConsole(0);
    list->refreshControl()->pull();
    ASSERT_TRUE(allFetched());
    EXPECT_FALSE(corvel->isOnline);
    EXPECT_EQ(corvel->version(), std::nullopt);
}

} // namespace
} // namespace lodestar::testing
