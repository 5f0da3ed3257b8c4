// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Platform/UserDefaults.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Corvels/CorvelListCell.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/Corvels/DeltaCorvelViewController.h"
#include "Views/Dashboard/DashboardTableViewController.h"

#include <thread>

namespace lodestar::testing
{
namespace
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;

constexpr auto listFile = "Shared/Views/Corvels/CorvelListViewController";
constexpr auto refreshing = "dataRefresh: CorvelListViewController: Refreshing data from REST";

class CorvelListTest : public ListTest
{
protected:
    void SetUp() override
    {
        ListTest::SetUp();
        UserDefaults::standard().setBool(true, "initialLoad");
        UserDefaults::standard().setBool(true, "showedPreview");
    }
    void TearDown() override
    {
        list.reset();
        ListTest::TearDown();
    }
    void load()
    {
        list = makeController<CorvelListViewController>();
        navigation = makeController<NavigationController>(list);
        navigation->loadViewIfNeeded();
        navigation->beginAppearance();
    }
    CorvelListCell cell(int row) const
    {
        return list->cellForRowAtIndexPath(TableKind::Main, {0, row}).value<CorvelListCell>();
    }

    std::shared_ptr<CorvelListViewController> list;
};

TEST_F(CorvelListTest, FirstLaunchSeedsTheDemoConsoleOnceAndFetchesIt)
{
    UserDefaults::standard().setBool(false, "initialLoad");
    load();
    const std::vector<CorvelRef> corvels = RESTHandler::sharedInstance().corvelList();
    ASSERT_EQ(corvels.size(), 1U);
    const CorvelRef demo = corvels.front();
    EXPECT_EQ(demo->name(), "Demo Corvel");
    EXPECT_EQ(demo->address(), "127.0.0.1");
    EXPECT_EQ(demo->demo(), 1);
    EXPECT_EQ(demo->username(), std::nullopt);
    EXPECT_TRUE(UserDefaults::standard().boolForKey("initialLoad"));
    EXPECT_FALSE(demo->completedFetch || list->tableView()->isHidden());
    EXPECT_TRUE(list->viewHasAppearedOnce());
    EXPECT_EQ(list->title(), "My Corvels");
    EXPECT_TRUE(list->backTitle().isEmpty() && !list->backTitle().isNull());

    ASSERT_TRUE(runUntil([&] { return demo->completedFetch.load(); }));
    EXPECT_EQ(demo->version(), "V3R2.4.0.SP1");
    EXPECT_FALSE(StoreStack::shared().managedObjectContext().hasChanges());
    EXPECT_THAT(unnumberedLog(listFile), ElementsAre("viewDidLoad: CorvelListViewController instantiation", refreshing,
                                                     "dataRefresh: CorvelListViewController: Parsing mcvi",
                                                     "dataRefresh: CorvelListViewController: Parsing version"));

    list->introDidFinish();
    EXPECT_EQ(unnumberedLog(listFile).back(), refreshing);

    // The user deletes it: it does not come back.
    for (int loads = 0; loads < 2; ++loads) {
        list->swipeTableCell(0, 0);
        EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
        EXPECT_TRUE(list->tableView()->isHidden());
        load();
    }
}

TEST_F(CorvelListTest, RowsShowSpinnersOrValues)
{
    load();
    const CorvelRef corvel = addCorvel("Harbour A", "corvel-a.harbour.example");
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
        {true, 0, Feed(parse("<feed><entry/><x/><entry/><entry/></feed>")), "V(null)R(null).(null).(null).(null)",
         "N/A", "Good, attention 2, events 3", Role::State::Good},
        {true, 1, Feed::notAvailable(), "V3R2", "V3R2", "Error, attention 2, events 0", Role::State::Error},
        {false, 1, Feed::notAvailable(), "V3R2", "V3R2", "Offline, attention 2, events 0", Role::State::Offline}};
    for (const auto& look : looks) {
        SCOPED_TRACE(look.spoken);
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
    }
    EXPECT_THAT(cell(0).rightButtons, ElementsAre(SwipeButton{"Delete", Role::Button::Destructive},
                                                  SwipeButton{"Edit", Role::Button::Quiet}));
}

TEST_F(CorvelListTest, PullSendsEveryRowBackToItsSpinnersAndFetchesAnew)
{
    const CorvelRef demo = addCorvel("Demo", "127.0.0.1", true);
    load();
    ASSERT_TRUE(runUntil([&] { return demo->completedFetch.load(); }));
    demoFeeds()["ServiceableEvent"] = "<feed><entry/></feed>";
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
}

TEST_F(CorvelListTest, DeleteTakesTheRecordItsKeyAndItsRow)
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
    ASSERT_TRUE(runUntil(
        [&] { return kept->completedFetch && !UserDefaults::standard().stringForKey("b.example").has_value(); }));
    EXPECT_EQ(deleted->version(), std::nullopt);
    EXPECT_FALSE(list->tableView()->isHidden());
    EXPECT_THAT(storedNames(), ElementsAre("Harbour A"));
}

TEST_F(CorvelListTest, OnlyAFetchedOnlineConsoleOpensItsOverview)
{
    const CorvelRef corvel = addCorvel("Demo", "127.0.0.1", true);
    load();
    ASSERT_TRUE(runUntil([&] { return corvel->completedFetch.load(); }));
    registerScenes(Scenes::corvelTasksViewController);
    watch(list->tableView());
    for (const auto& [completed, online] : {std::pair{false, true}, {true, false}, {true, true}}) {
        EXPECT_THAT(deselected, IsEmpty());
        corvel->completedFetch = completed;
        corvel->isOnline = online;
        list->tableView()->select(0);
    }
    EXPECT_EQ(input<CorvelRef>(), corvel);
    EXPECT_THAT(deselected, ElementsAre(0));
}

TEST_F(CorvelListTest, SheetFollowsKeyboardAndStatus)
{
    addCorvel("Harbour A", "a.example", true);
    load();
    int closedSwipes = 0;
    QObject::connect(list->tableView(), &TableOutlet::closeSwipesRequested, [&] { ++closedSwipes; });
    EXPECT_TRUE(list->swipeTableCell(0, 1));
    EXPECT_EQ(closedSwipes, 1);
    const SemiModalPresentation* const sheet = list->semiModal();
    ASSERT_NE(sheet, nullptr);
    EXPECT_FALSE(sheet->pushParentBack());
    EXPECT_EQ(dynamic_cast<DeltaCorvelViewController&>(*sheet->controller()).corvel()->name(), "Harbour A");
    EXPECT_EQ(sheet->height(), 224);
    list->keyboardWillShow(300);
    EXPECT_EQ(sheet->height(), 524);
    list->keyboardWillHide();
    EXPECT_EQ(sheet->height(), 224);
    NotificationCenter::defaultCenter().postNotification("StatusWillShow");
    EXPECT_EQ(sheet->height(), 266);
    NotificationCenter::defaultCenter().postNotification("StatusShouldHide");
    navigation->endAppearance();
    list->keyboardWillShow(300);
    EXPECT_EQ(sheet->height(), 223);
    NotificationCenter::defaultCenter().postNotification("CloseDeltaCorvel");
    EXPECT_EQ(list->semiModal(), nullptr);
    list->addCorvel();
    EXPECT_EQ(dynamic_cast<DeltaCorvelViewController&>(*list->semiModal()->controller()).corvel(), nullptr);
}

/// Against real consoles.
class FleetTest : public CorvelListTest
{
protected:
    void start(int consoles)
    {
        ServerTrust::shared().forgetAll();
        simulator::Settings settings;
        settings.consoles = consoles;
        fleet.start(settings);
    }
    CorvelRef addConsole(int console, const std::string& name)
    {
        const CorvelRef corvel = addCorvel(name, fleet.address(console));
        corvel->setUsername(fleet.user());
        corvel->setPassword(fleet.password());
        return corvel;
    }
    static bool allFetched()
    {
        const auto& consoles = RESTHandler::sharedInstance().corvelList();
        return runUntil(
            [&] {
                return std::ranges::all_of(consoles, [](const CorvelRef& each) { return each->completedFetch.load(); });
            },
            std::chrono::seconds(30));
    }

    simulator::SimulatorProcess fleet;
};

TEST_F(FleetTest, EachConsoleIsJudgedByItsLogonAndCountedByItsFeeds)
{
    start(3);
    addConsole(0, "Good");
    addConsole(1, "Refused");
    addConsole(2, "No feeds");
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

    const auto dashboard = makeController<DashboardTableViewController>();
    dashboard->loadViewIfNeeded();
    dashboard->beginAppearance();
    ASSERT_TRUE(runUntil([&] { return !dashboard->corvelOnlineCount()->isHidden(); }));
    EXPECT_EQ(dashboard->corvelOnlineCount()->text(), "2 / 3");
    EXPECT_EQ(dashboard->totalEventsCount()->text(), QString::number(summary.events));

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
    start(1);
    const CorvelRef corvel = addConsole(0, "Harbour A");
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
