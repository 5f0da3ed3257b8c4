// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/TabBarController.h"
#include "Platform/UserDefaults.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/Scenes.h"
#include "Views/Corvels/CorvelListCell.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/Corvels/DeltaCorvelViewController.h"

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto listFile = "Shared/Views/Corvels/CorvelListViewController";

class CorvelListTest : public ViewsTest
{
protected:
    void SetUp() override
    {
        ViewsTest::SetUp();
        UserDefaults::standard().setBool(true, "initialLoad");
        UserDefaults::standard().setBool(true, "showedPreview");
    }
    void TearDown() override
    {
        CorvelListViewController::setIntroPresenter(nullptr);
        navigation.reset();
        list.reset();
        ViewsTest::TearDown();
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
    double sheetHeight() const { return list->semiModal() != nullptr ? list->semiModal()->height() : 0; }

    std::shared_ptr<CorvelListViewController> list;
    std::shared_ptr<NavigationController> navigation;
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
    EXPECT_FALSE(demo->completedFetch);
    EXPECT_FALSE(list->tableView()->isHidden());
    EXPECT_TRUE(list->viewHasAppearedOnce());
    EXPECT_EQ(list->title(), "My Corvels");
    EXPECT_TRUE(list->backTitle().isEmpty() && !list->backTitle().isNull());

    ASSERT_TRUE(runUntil([&] { return demo->completedFetch.load(); }));
    EXPECT_EQ(demo->version(), "V3R2.4.0.SP1");
    EXPECT_FALSE(StoreStack::shared().managedObjectContext().hasChanges());
    const std::vector<LoggedLine> log = lines(listFile);
    ASSERT_EQ(log.size(), 4U);
    EXPECT_EQ(log[0].message, "CorvelListViewController instantiation");
    EXPECT_EQ(log[0].method, "-[CorvelListViewController viewDidLoad]");
    EXPECT_EQ(log[0].level, 2);
    EXPECT_EQ(log[0].tag, 0);
    EXPECT_EQ(log[1].message, "CorvelListViewController: Refreshing data from REST");
    EXPECT_EQ(log[1].method, "-[CorvelListViewController dataRefresh]");
    EXPECT_EQ(log[2].message, "CorvelListViewController: Parsing mcvi");
    EXPECT_EQ(log[3].message, "CorvelListViewController: Parsing version");

    // The user deletes it: it does not come back.
    list->swipeTableCell(0, 0);
    load();
    EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
    EXPECT_TRUE(list->tableView()->isHidden());
}

TEST_F(CorvelListTest, RowsShowSpinnersOrValues)
{
    load();
    const CorvelRef corvel = addCorvel("Harbour A", "corvel-a.harbour.example");

    CorvelListCell fetching = cell(0);
    EXPECT_EQ(fetching.nameLabel().text, "Harbour A");
    EXPECT_EQ(fetching.addressLabel().text, "corvel-a.harbour.example");
    EXPECT_EQ(fetching.versionLabel().text, "(null)");
    EXPECT_TRUE(fetching.statusActivityIndicator().animating && fetching.attentionActivityIndicator().animating &&
                fetching.eventsActivityIndicator().animating);
    EXPECT_TRUE(fetching.statusLabel().hidden && fetching.attentionLabel().hidden && fetching.eventsLabel().hidden &&
                fetching.selectionArrow().hidden);
    EXPECT_FALSE(fetching.highlights());
    EXPECT_EQ(fetching.accessibleText(), "Harbour A, updating");

    corvel->completedFetch = true;
    corvel->isOnline = true;
    corvel->setVersion("V(null)R(null).(null).(null).(null)");
    corvel->numMSLEDs = 2;
    corvel->setRestData(feeds({{"ServiceableEvent", Feed(parse("<feed><entry/><x/><entry/><entry/></feed>"))}}));
    const CorvelListCell good = cell(0);
    EXPECT_EQ(good.versionLabel().text, "N/A");
    EXPECT_EQ(good.statusLabel().text, "Good");
    EXPECT_EQ(good.statusLabel().state, Role::State::Good);
    EXPECT_EQ(good.attentionLabel().text, "2");
    EXPECT_EQ(good.eventsLabel().text, "3");
    EXPECT_FALSE(good.statusActivityIndicator().animating || good.statusLabel().hidden || good.selectionArrow().hidden);
    EXPECT_TRUE(good.highlights());
    EXPECT_EQ(good.accessibleText(), "Harbour A, Good, attention 2, events 3");

    corvel->numMSErrors = 1;
    corvel->setVersion("V3R2.4.0.SP1");
    corvel->setRestData(feeds({{"ServiceableEvent", Feed::notAvailable()}}));
    const CorvelListCell failed = cell(0);
    EXPECT_EQ(failed.versionLabel().text, "V3R2.4.0.SP1");
    EXPECT_EQ(failed.statusLabel().text, "Error");
    EXPECT_EQ(failed.statusLabel().state, Role::State::Error);
    EXPECT_EQ(failed.eventsLabel().text, "0");

    corvel->isOnline = false;
    const CorvelListCell offline = cell(0);
    EXPECT_EQ(offline.statusLabel().text, "Offline");
    EXPECT_EQ(offline.statusLabel().state, Role::State::Offline);
    EXPECT_TRUE(offline.selectionArrow().hidden);
    EXPECT_FALSE(offline.highlights() || offline.statusLabel().hidden);
    EXPECT_EQ(offline.attentionLabel().text, "2");

    const QList<SwipeButton>& buttons = offline.rightButtons();
    ASSERT_EQ(buttons.size(), 2);
    EXPECT_EQ(buttons[0].title, "Delete");
    EXPECT_EQ(buttons[0].role, Role::Button::Destructive);
    EXPECT_EQ(buttons[1].title, "Edit");
    EXPECT_EQ(buttons[1].role, Role::Button::Quiet);
}

TEST_F(CorvelListTest, PullSendsEveryRowBackToItsSpinnersAndFetchesAnew)
{
    const CorvelRef demo = addCorvel("Demo", "127.0.0.1", true);
    load();
    ASSERT_TRUE(runUntil([&] { return demo->completedFetch.load(); }));
    demoFeeds()["ServiceableEvent"] = "<feed><entry/></feed>";
    list->refreshControl()->pull();
    EXPECT_FALSE(list->refreshControl()->isRefreshing());
    EXPECT_EQ(demo->version(), "V3R2.4.0.SP1");
    EXPECT_EQ(demo->numMSLEDs, 1);
    EXPECT_TRUE(cell(0).statusActivityIndicator().animating);
    ASSERT_TRUE(runUntil([&] { return demo->completedFetch.load(); }));
    EXPECT_EQ(cell(0).eventsLabel().text, "1");
    EXPECT_EQ(std::ranges::count(messages(listFile), "CorvelListViewController: Refreshing data from REST"), 2);
}

TEST_F(CorvelListTest, OnlyAFetchedOnlineConsoleOpensItsOverview)
{
    std::vector<CorvelRef> opened;
    const CorvelRef corvel = addCorvel("Demo", "127.0.0.1", true);
    load();
    ASSERT_TRUE(runUntil([&] { return corvel->completedFetch.load(); }));
    std::vector<int> deselected;
    QObject::connect(list->tableView(), &TableOutlet::deselected, [&](int row) { deselected.push_back(row); });
    Storyboard::main().registerScene(
        Scenes::corvelTasksViewController,
        [&](CorvelRef input) {
            opened.push_back(std::move(input));
            return makeController<ViewController>();
        },
        QUrl());
    for (const auto& [completed, online] : {std::pair{false, true}, std::pair{true, false}}) {
        corvel->completedFetch = completed;
        corvel->isOnline = online;
        list->tableView()->select(0);
        EXPECT_EQ(navigation->depth(), 1);
        EXPECT_THAT(deselected, IsEmpty());
    }
    corvel->completedFetch = corvel->isOnline = true;
    list->tableView()->select(0);
    EXPECT_EQ(navigation->depth(), 2);
    EXPECT_THAT(opened, ElementsAre(corvel));
    EXPECT_THAT(deselected, ElementsAre(0));
}

TEST_F(CorvelListTest, DeleteTakesTheRecordItsKeyAndItsRow)
{
    addCorvel("Harbour A", "a.example", true);
    addCorvel("Harbour B", "b.example", true);
    load();
    UserDefaults::standard().setString("key", "a.example");
    UserDefaults::standard().setString("key", "b.example");
    EXPECT_TRUE(list->swipeTableCell(0, 2));
    EXPECT_TRUE(list->swipeTableCell(7, 0));
    EXPECT_EQ(list->tableView()->count(), 2);

    EXPECT_TRUE(list->swipeTableCell(0, 0));
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_EQ(cell(0).nameLabel().text, "Harbour B");
    EXPECT_EQ(UserDefaults::standard().stringForKey("a.example"), std::nullopt);
    EXPECT_EQ(UserDefaults::standard().stringForKey("b.example"), "key");
    EXPECT_FALSE(list->tableView()->isHidden());

    EXPECT_TRUE(list->swipeTableCell(0, 0));
    EXPECT_TRUE(list->tableView()->isHidden());
    runUntil([] { return false; }, std::chrono::milliseconds(50));
    EXPECT_THAT(storedNames(), IsEmpty());
}

TEST_F(CorvelListTest, ARecordDeletedDuringItsRefreshStaysGone)
{
    const CorvelRef kept = addCorvel("Harbour A", "a.example", true);
    const CorvelRef deleted = addCorvel("Harbour B", "b.example", true);
    load();
    list->swipeTableCell(1, 0);
    // As a logon that was under way would leave it behind.
    UserDefaults::standard().setString("late key", "b.example");
    ASSERT_TRUE(runUntil(
        [&] { return kept->completedFetch && !UserDefaults::standard().stringForKey("b.example").has_value(); }));
    EXPECT_EQ(deleted->version(), std::nullopt);
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_THAT(storedNames(), ElementsAre("Harbour A"));
}

TEST_F(CorvelListTest, AClosedListStillStoresWhatItFetched)
{
    const CorvelRef corvel = addCorvel("Demo", "127.0.0.1", true);
    load();
    const std::weak_ptr<CorvelListViewController> weak = list;
    navigation.reset();
    list.reset();
    ASSERT_TRUE(runUntil([&] { return corvel->completedFetch.load(); }));
    EXPECT_EQ(corvel->version(), "V3R2.4.0.SP1");
    EXPECT_TRUE(runUntil([&] { return weak.expired(); }));
}

TEST_F(CorvelListTest, SheetFollowsKeyboardAndStatus)
{
    addCorvel("Harbour A", "a.example", true);
    load();
    int closedSwipes = 0;
    QObject::connect(list->tableView(), &TableOutlet::closeSwipesRequested, [&] { ++closedSwipes; });
    EXPECT_TRUE(list->swipeTableCell(0, 1));
    ASSERT_NE(list->semiModal(), nullptr);
    EXPECT_EQ(closedSwipes, 1);
    EXPECT_FALSE(list->semiModal()->pushParentBack());
    const auto* editor = qobject_cast<DeltaCorvelViewController*>(list->semiModal()->controller());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->corvel()->name(), "Harbour A");
    EXPECT_EQ(sheetHeight(), 224);

    list->keyboardWillShow(300);
    EXPECT_EQ(sheetHeight(), 524);
    list->keyboardWillHide();
    EXPECT_EQ(sheetHeight(), 224);
    NotificationCenter::defaultCenter().postNotification("StatusWillShow");
    EXPECT_EQ(sheetHeight(), 266);
    NotificationCenter::defaultCenter().postNotification("StatusShouldHide");
    EXPECT_EQ(sheetHeight(), 223);

    navigation->endAppearance();
    list->keyboardWillShow(300);
    EXPECT_EQ(sheetHeight(), 223);

    NotificationCenter::defaultCenter().postNotification("CloseDeltaCorvel");
    EXPECT_EQ(list->semiModal(), nullptr);
    list->addCorvel();
    ASSERT_NE(list->semiModal(), nullptr);
    EXPECT_EQ(qobject_cast<DeltaCorvelViewController*>(list->semiModal()->controller())->corvel(), nullptr);
}

TEST_F(CorvelListTest, TourIsShownOnceAndRefreshesWhenItEnds)
{
    int shown = 0;
    ViewController* shownOver = nullptr;
    CorvelListViewController::setIntroPresenter(
        [&](ViewController& over, const std::weak_ptr<CorvelListViewController>& delegate) {
            ++shown;
            shownOver = &over;
            EXPECT_EQ(delegate.lock(), list);
        });
    load();
    EXPECT_EQ(shown, 0);

    UserDefaults::standard().setBool(false, "showedPreview");
    list = makeController<CorvelListViewController>();
    navigation = makeController<NavigationController>(list);
    const auto tabs = makeController<TabBarController>(std::vector<TabBarItem>{{"Corvels", "", navigation}});
    tabs->loadViewIfNeeded();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(shownOver, tabs.get());
    list->introDidFinish();
    EXPECT_TRUE(UserDefaults::standard().boolForKey("showedPreview"));
    EXPECT_EQ(messages(listFile).back(), "CorvelListViewController: Refreshing data from REST");
    load();
    EXPECT_EQ(shown, 1);
}

} // namespace
} // namespace lodestar::testing
