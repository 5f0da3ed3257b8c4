// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Platform/UserDefaults.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Corvels/CorvelListCell.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/Corvels/DeltaCorvelViewController.h"
#include "Views/Dashboard/DashboardTableViewController.h"

#include <thread>

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::MatchesRegex;

constexpr auto listFile = "Shared/Views/Corvels/CorvelListViewController";

/// The screens against real consoles.
class FleetTest : public ViewsTest
{
protected:
    void SetUp() override
    {
        ViewsTest::SetUp();
        UserDefaults::standard().setBool(true, "initialLoad");
        UserDefaults::standard().setBool(true, "showedPreview");
        ServerTrust::shared().forgetAll();
    }
    void TearDown() override
    {
        list.reset();
        ViewsTest::TearDown();
    }
    void start(int consoles)
    {
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
    void fill(DeltaCorvelViewController& editor, int console)
    {
        editor.nameField()->setText("Harbour A");
        editor.addressField()->setText(QString::fromStdString(fleet.address(console)));
        editor.usernameField()->setText(QString::fromStdString(fleet.user()));
        editor.passwordField()->setText(QString::fromStdString(fleet.password()));
    }
    /// An editor that is at work on adding the console.
    std::shared_ptr<DeltaCorvelViewController> startAdding(int console)
    {
        const auto editor = makeController<DeltaCorvelViewController>();
        editor->loadViewIfNeeded();
        fill(*editor, console);
        editor->saveCorvel();
        return editor;
    }
    void loadAndWait()
    {
        list = makeController<CorvelListViewController>();
        list->loadViewIfNeeded();
        ASSERT_TRUE(allFetched());
    }
    bool allFetched()
    {
        return runUntil(
            [] {
                const auto& corvels = RESTHandler::sharedInstance().corvelList();
                return std::ranges::all_of(corvels,
                                           [](const CorvelRef& corvel) { return corvel->completedFetch.load(); });
            },
            std::chrono::seconds(30));
    }
    CorvelListCell cell(int row) const
    {
        return list->cellForRowAtIndexPath(TableKind::Main, {0, row}).value<CorvelListCell>();
    }

    simulator::SimulatorProcess fleet;
    std::shared_ptr<CorvelListViewController> list;
};

TEST_F(FleetTest, EachConsoleIsJudgedByItsLogonAndCountedByItsFeeds)
{
    start(3);
    addConsole(0, "Good");
    addConsole(1, "Refused");
    addConsole(2, "No feeds");
    fleet.setFault("refuseLogon:1");
    fleet.setFault("refuseFeed:2");
    loadAndWait();

    const simulator::InventorySummary summary = fleet.summary(0);
    EXPECT_EQ(cell(0).statusLabel().text, summary.systemErrors > 0 ? "Error" : "Good");
    EXPECT_EQ(cell(0).attentionLabel().text, QString::number(summary.attentionLEDs));
    EXPECT_EQ(cell(0).eventsLabel().text, QString::number(summary.events));
    EXPECT_THAT(cell(0).versionLabel().text.toStdString(), MatchesRegex("V[0-9]+R.+"));
    EXPECT_EQ(cell(1).statusLabel().text, "Offline");
    EXPECT_EQ(cell(1).versionLabel().text, "(null)");
    EXPECT_EQ(cell(2).statusLabel().text, "Good");
    EXPECT_EQ(cell(2).versionLabel().text, "N/A");
    EXPECT_EQ(cell(2).eventsLabel().text, "0");
    const std::vector<std::string> log = messages(listFile);
    EXPECT_EQ(std::ranges::count_if(log, [](const std::string& line) { return line.starts_with("Error: "); }), 1);
    EXPECT_TRUE(std::ranges::any_of(log, [](const std::string& line) { return line.ends_with(" - > dataRefresh"); }));

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
    EXPECT_EQ(cell(0).statusLabel().text, "Offline");
    EXPECT_EQ(cell(0).attentionLabel().text, QString::number(summary.attentionLEDs));
    EXPECT_NE(cell(1).statusLabel().text, "Offline");
}

TEST_F(FleetTest, TheEditorAddsAConsoleOnceItHasEverything)
{
    start(1);
    list = makeController<CorvelListViewController>();
    list->loadViewIfNeeded();
    EXPECT_TRUE(list->tableView()->isHidden());
    list->addCorvel();
    const auto editor = std::dynamic_pointer_cast<DeltaCorvelViewController>(list->semiModal()->sharedController());
    ASSERT_NE(editor, nullptr);
    std::vector<QString> statuses;
    QObject::connect(editor->statusLabel(), &LabelOutlet::textChanged,
                     [&] { statuses.push_back(editor->statusLabel()->text()); });
    fill(*editor, 0);
    editor->saveCorvel();
    ASSERT_TRUE(runUntil([&] { return list->semiModal() == nullptr; }, std::chrono::seconds(30)));

    EXPECT_THAT(statuses, ElementsAre("verifying...", "gathering data..."));
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow", "StatusWillShow", "CloseDeltaCorvel"));
    ASSERT_EQ(RESTHandler::sharedInstance().corvelList().size(), 1U);
    EXPECT_FALSE(list->tableView()->isHidden());
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_FALSE(cell(0).selectionArrow().hidden);
    EXPECT_TRUE(UserDefaults::standard().stringForKey(fleet.address(0)).has_value());

    // The sheet can be pressed until it has slid away.
    editor->cancel();
    EXPECT_THAT(takeNotifications(), ElementsAre());
    EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().front()->isInserted());
    EXPECT_THAT(storedNames(), ElementsAre("Harbour A"));
}

TEST_F(FleetTest, ARefreshWhoseFeedsAPullHasResetStoresNoVersion)
{
    start(1);
    const CorvelRef corvel = addConsole(0, "Harbour A");
    list = makeController<CorvelListViewController>();
    list->loadViewIfNeeded();
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

TEST_F(FleetTest, AnEditorWhoseSheetIsGoneAddsItsConsoleBesideTheNextOne)
{
    start(1);
    fleet.setLatency(200);
    list = makeController<CorvelListViewController>();
    list->loadViewIfNeeded();
    const auto openEditor = [&] {
        list->addCorvel();
        return std::dynamic_pointer_cast<DeltaCorvelViewController>(list->semiModal()->sharedController());
    };
    const auto first = openEditor();
    fill(*first, 0);
    first->saveCorvel();
    list->dismissSemiModalView(); // as the lock does
    const auto second = openEditor();
    fill(*second, 0);
    second->saveCorvel();
    takeNotifications();
    const auto& added = RESTHandler::sharedInstance().corvelList();
    ASSERT_TRUE(runUntil([&] { return !added.empty(); }, std::chrono::seconds(30)));
    const auto secondEnded = [&] { return !second->isBusy() || list->semiModal() == nullptr; };
    ASSERT_TRUE(runUntil(secondEnded, std::chrono::seconds(30)));
    const bool firstCame = second->statusLabel()->text() == "Corvel has already been added";
    EXPECT_EQ(added.size(), 1U);
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_EQ(list->semiModal() != nullptr, firstCame) << "nobody closes another's sheet";
    EXPECT_TRUE(UserDefaults::standard().stringForKey(fleet.address(0)).has_value());
}

TEST_F(FleetTest, AConsoleAddedAnewWhileItsFormerFetchEndsKeepsItsKey)
{
    start(1);
    fleet.setLatency(200);
    const auto former = startAdding(0);
    const CorvelRef record = former->corvel();
    ASSERT_TRUE(runUntil([&] { return record->isOnline.load(); }, std::chrono::seconds(30)));
    former->cancel();
    const auto editor = startAdding(0);
    const auto& added = RESTHandler::sharedInstance().corvelList();
    ASSERT_TRUE(runUntil([&] { return !added.empty(); }, std::chrono::seconds(30)));
    EXPECT_NE(record->restData(), nullptr) << "the former fetch has ended";
    EXPECT_TRUE(UserDefaults::standard().stringForKey(fleet.address(0)).has_value());
}

TEST_F(FleetTest, CancellingWhileItGathersLeavesNoTrace)
{
    start(1);
    fleet.setLatency(200);
    const auto editor = startAdding(0);
    const CorvelRef record = editor->corvel();
    ASSERT_TRUE(runUntil([&] { return record->isOnline.load(); }, std::chrono::seconds(30)));
    editor->cancel();
    ASSERT_TRUE(
        runUntil([&] { return !UserDefaults::standard().stringForKey(fleet.address(0)); }, std::chrono::seconds(30)));
    EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
    EXPECT_TRUE(storedNames().empty());
}

} // namespace
} // namespace lodestar::testing
