// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"
#include "Inventory/ResourceGroup.h"
#include "Kit/Core/CellHost.h"
#include "Kit/Core/FileSaver.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/Dashboard/MSOverViewController.h"
#include "Views/ManagedSystems/MSDetailViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"
#include "Views/ResourceGroups/RGListViewController.h"

#include <QElapsedTimer>
#include <QTimer>

namespace lodestar::scenes
{
namespace
{

/// The lists of a console's inventory.
class ListsTest : public SceneTest
{
protected:
    MSListViewController* openSystems(const std::map<std::string, std::string>& feeds = {})
    {
        stage.show({390, 844}, fleet());
        return &stage.openList<MSListViewController>(Scenes::managedSystemsView, demoConsole(feeds));
    }
    FeedListViewController* openPartitions(const CorvelRef& corvel, const std::optional<std::string>& system = {})
    {
        return &stage.openList(Scenes::logicalPartitionsView, {.corvel = corvel, .partitionName = system});
    }
};

TEST_F(ListsTest, SearchByKeyboardMarksWhatItFinds)
{
    Appearance::shared().overrideMirrored(true);
    MSListViewController* const list = openSystems();
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(stage.waitFor([&] { return stage.items("SearchBar").size() == 1; }));
    type("LED");
    EXPECT_EQ(list->searchResultsTableView()->count(), 2);
    ASSERT_TRUE(stage.waitFor([&] { return text("helios-01") == nullptr && text("atlas-ledger-01") != nullptr; }));
    EXPECT_EQ(text("atlas-ledger-01")->property("matchStart").toInt(), 6);
    // The mark stays behind its letters: in rows that come up mirrored, at the name's other end, and when that changes.
    for (const bool mirrored : {true, false}) {
        Appearance::shared().overrideMirrored(mirrored);
        stage.settle(50);
        const QQuickItem* const drawn = text("atlas-ledger-01");
        const QQuickItem* const mark = drawn->childItems().front();
        ASSERT_TRUE(mark->isVisible());
        const double fromStart = mirrored ? drawn->width() - mark->x() - mark->width() : mark->x();
        EXPECT_GT(fromStart, 0);
        EXPECT_LT(fromStart, drawn->property("implicitWidth").toDouble());
    }
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_TRUE(waitForButton("System Information"));
    stage.settle(200);
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return !list->actionSheet()->isPresented(); }));
    stage.settle(200);

    // Escape ends the search, then goes back.
    press(Qt::Key_Escape);
    EXPECT_FALSE(list->searchBar()->isActive());
    EXPECT_NE(text("helios-01"), nullptr);
    list->showSearchBar();
    EXPECT_EQ(list->searchBar()->text(), "");
    type("zzz");
    ASSERT_TRUE(waitForText("Nothing found."));
    click(button("Cancel"));
    EXPECT_TRUE(waitForText("helios-01"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(stage.waitFor([&] { return top() == &stage.list(); }));
}

TEST_F(ListsTest, ItsRowsAreSavedByKeyAndFromTheBarWhileThereAreAny)
{
    QStringList names;
    FileSaver::answerWith([&names](const QString& name) {
        names << name;
        return QString();
    });
    MSListViewController* const list = openSystems();
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(names.join('/').toStdString(), "Managed Systems, Harbour B.csv") << "once, of the list that is seen";
    list->showSearchBar();
    type("LED");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(names.size(), 2);
    list->searchBar()->cancel();
    click(button("Save list as CSV"));
    ASSERT_TRUE(waitForButton("Save as File"));
    stage.settle(400);
    click(button("Save as File"));
    EXPECT_TRUE(stage.waitFor([&] { return names.size() == 3; }));

    openSystems({{"ManagedSystem", "<feed/>"}});
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(names.size(), 3);
    EXPECT_EQ(button("Save list as CSV"), nullptr);
    FileSaver::answerWith({});
}

TEST_F(ListsTest, TheThreeLooksShowNothingOfEachOther)
{
    MSListViewController* const list = openSystems({{"ManagedSystem", ""}});
    EXPECT_NE(text("Managed systems could not be loaded. Refresh to try again."), nullptr);
    EXPECT_TRUE(stage.items("Spinner").empty());
    EXPECT_EQ(stage.item("rightBarButton")->property("text"), "Refresh");
    list->UILoadingData();
    ASSERT_TRUE(stage.waitFor([&] { return stage.items("Spinner").size() == 1; }));
    EXPECT_EQ(text("Managed systems could not be loaded. Refresh to try again."), nullptr);
    EXPECT_EQ(text("This console manages no systems."), nullptr);

    openSystems({{"ManagedSystem", "<feed/>"}});
    EXPECT_NE(text("This console manages no systems."), nullptr);
    EXPECT_EQ(stage.item("rightBarButton")->property("text"), "Search");
    EXPECT_TRUE(stage.items("Spinner").empty());
    // Nor is a list filled by a header without rows. Nobody has logged on to the console: no look-up answers.
    const CorvelRef corvel = demoConsole();
    corvel->setDemo(false);
    openPartitions(corvel, "elsewhere");
    EXPECT_NE(text("Unknown system"), nullptr);
    EXPECT_NE(text("There are no partitions here."), nullptr);
}

TEST_F(ListsTest, TheMenuKeyUncoversTheWayToASystemsMenu)
{
    openSystems();
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    press(Qt::Key_Menu);
    ASSERT_TRUE(waitForButton("System menu"));
    stage.settle(300);
    press(Qt::Key_Return);
    ASSERT_TRUE(stage.waitFor([&] { return qobject_cast<MSOverViewController*>(top()) != nullptr; }));
    ASSERT_TRUE(stage.waitFor([&] { return stage.items("CircleGauge").size() == 2; }));
    const QQuickItem* const gauge = stage.items("CircleGauge")[1];
    EXPECT_EQ(QRectF(gauge->position(), gauge->size()), QRectF(85, 28, 110, 110));
    EXPECT_DOUBLE_EQ(gauge->property("drawn").toDouble(), 0.6);
    EXPECT_EQ(gauge->property("clockwise"), false);
    EXPECT_EQ(gauge->property("strokeColor").value<QColor>(), QColor(77, 186, 122));
    press(Qt::Key_End);
    press(Qt::Key_Return);
    EXPECT_TRUE(stage.waitFor([&] { return qobject_cast<MSDetailViewController*>(top()) != nullptr; }));
    EXPECT_EQ(top()->title(), "helios-02");
}

TEST_F(ListsTest, AHundredThousandRowsMakeDelegatesForTheVisibleOnes)
{
    std::string feed = "<feed>";
    for (int i = 0; i < 100000; ++i) {
        feed += "<entry><content><ManagedSystem><SystemName>node-" + std::to_string(i) +
                "</SystemName><State>operating</State></ManagedSystem></content></entry>";
    }
    MSListViewController* const list = openSystems({{"ManagedSystem", feed + "</feed>"}});
    ASSERT_EQ(list->tableView()->count(), 100000);
    const std::size_t rows = stage.items("StateRow").size();
    EXPECT_LT(rows, 25U);
    press(Qt::Key_End);
    ASSERT_TRUE(waitForText("node-99999"));
    stage.settle(); // the row that has the keyboard is made before the list has come to it
    // Those that were left wait for their next use and cost a frame nothing, nor does any text ask for each frame.
    EXPECT_LE(stage.items("StateRow").size(), rows);
    std::size_t waiting = 0;
    for (const QQuickItem* const place : row(99999)->parentItem()->childItems()) {
        if (const auto* const host = place->findChild<const CellHost*>(); host != nullptr) {
            EXPECT_EQ(host->property("pooled").toBool(), !host->isVisible());
            waiting += host->isVisible() ? 0U : 1U;
        }
    }
    EXPECT_GT(waiting, 0U);
    click(stage.items("TitleView").front());
    ASSERT_TRUE(waitForText("node-0"));
    for (const QQuickItem* const item : stage.items("QQuickText")) {
        EXPECT_FALSE(item->flags().testFlag(QQuickItem::ItemObservesViewport)) << item->objectName().toStdString();
    }
    list->showSearchBar();
    list->searchBar()->setText("NODE-9999");
    EXPECT_EQ(list->searchResultsTableView()->count(), 11);
    EXPECT_TRUE(waitForText("node-9999"));
    // The last result can be scrolled above a keyboard on the screen.
    for (QQuickItem* const table : stage.items("CardTable")) {
        table->setProperty("coveredHeight", 500);
        QMetaObject::invokeMethod(table->property("flickable").value<QQuickItem*>(), "flick", Q_ARG(qreal, 0),
                                  Q_ARG(qreal, -9000));
    }
    EXPECT_TRUE(stage.waitFor([&] {
        const QQuickItem* const last = text("node-99999");
        return last != nullptr && last->mapToScene({0, last->height()}).y() < 844 - 500;
    }));
}

TEST_F(ListsTest, RowsHaveTheirHeightsInANarrowWindowAndWhateverAConsoleAnswers)
{
    const struct {
        std::function<void(const CorvelRef&)> open;
        const char* type;
        const char* name;
        double height;
    } lists[] = {
        {[&](auto& corvel) { stage.openList(Scenes::resourceGroupsView, corvel); }, "Group", "GroupName", 75},
        {[&](auto& corvel) { stage.openList(Scenes::managedSystemsView, corvel); }, "ManagedSystem", "SystemName", 50},
        {[&](auto& corvel) { openPartitions(corvel); }, "LogicalPartition", "PartitionName", 50},
        {[&](auto& corvel) { stage.openList(Scenes::viosView, corvel); }, "VirtualIOServer", "PartitionName", 50}};
    for (const auto& [open, type, name, height] : lists) {
        const QString feed = "<feed><entry><content><%1><%2>Two\nlines\r\nand more</%2></%1></content></entry></feed>";
        for (const std::map<std::string, std::string>& feeds :
             {std::map<std::string, std::string>(), {{type, feed.arg(type, name).toStdString()}}}) {
            stage.show({320, 568}, fleet());
            open(demoConsole(feeds));
            for (const QQuickItem* const place : stage.items("TableRow")) {
                EXPECT_TRUE(place->property("isHeader").toBool() || place->height() == height) << type;
            }
        }
    }
}

TEST_F(ListsTest, AServersButtonsAreShownAndDoNothing)
{
    QAccessible::setActive(true);
    stage.show({390, 844}, fleet());
    FeedListViewController* const list = &stage.openList(Scenes::viosView, demoConsole());
    const auto reveal = [&] { return row(1)->property("swipe").value<QQuickItem*>()->property("reveal").toDouble(); };
    const auto buttons = [&] {
        std::vector<QQuickItem*> shown = stage.buttons();
        std::erase_if(shown, [](const QQuickItem* item) { return !item->property("picture").isValid(); });
        return shown;
    };
    const QPoint from = centerOf(row(1));
    pull(from, 180);
    letGo(from + QPoint(180, 0));
    ASSERT_TRUE(stage.waitFor([&] { return reveal() == -144; }));
    ASSERT_EQ(buttons().size(), 2U);
    EXPECT_EQ(buttons()[0]->property("picture"), "check");
    EXPECT_EQ(spokenAs(buttons()[0]), "Check");
    EXPECT_EQ(spokenAs(buttons()[1]), "Favourite");
    EXPECT_LT(buttons()[0]->mapToScene({}).x(), buttons()[1]->mapToScene({}).x());
    click(buttons()[1]);
    ASSERT_TRUE(stage.waitFor([&] { return reveal() == 0; }));

    // Far enough, the first fills what is uncovered.
    pull(from, 260);
    ASSERT_TRUE(stage.waitFor([&] { return buttons().at(0)->width() >= -reveal(); }));
    EXPECT_GT(-reveal(), 216);
    letGo(from + QPoint(260, 0));
    ASSERT_TRUE(stage.waitFor([&] { return reveal() == 0; }));
    EXPECT_EQ(top(), list);
}

TEST_F(ListsTest, TheScreenLivesWhileGroupsAskForTheirStatesAndTheyTakeNoPressAndNoSearch)
{
    constexpr int latency = 80; // of each look-up
    simulator::SimulatorProcess console({.groups = 14});
    stage.show({390, 520}, {});
    ServerTrust::shared().forgetAll();
    const CorvelRef corvel = demoConsole();
    corvel->setDemo(false);
    corvel->setAddress(console.address());
    corvel->setUsername(console.user());
    corvel->setPassword(console.password());
    const auto fetched = fetchInventory(corvel);
    ASSERT_TRUE(stage.waitFor([&] { return fetched.isFulfilled(); }));
    console.clearRequests();
    console.setLatency(latency);
    const auto asked = [&] { return static_cast<int>(console.requests(0).size()); };
    // How many resources the groups up to the last have.
    const auto resources = [groups = recordsOf<ResourceGroup>(feedOfType(*corvel, ObjectType::Group))](int last) {
        std::size_t count = 0;
        for (int place = 0; place <= last; ++place) {
            count += groups.at(static_cast<std::size_t>(place)).members().size();
        }
        return static_cast<int>(count);
    };
    const auto isUpdating = [](const QQuickItem* tableRow) {
        return tableRow->property("content").value<QQuickItem*>()->property("cell").value<RGListCell>().updating;
    };
    const auto updatingRows = [&] { return std::ranges::count_if(stage.items("TableRow"), isUpdating); };

    QElapsedTimer since;
    qint64 longest = 0;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout, [&] { longest = std::max(longest, since.restart()); });
    since.start();
    pulse.start(1);
    auto* const list = stage.open<RGListViewController>(Scenes::resourceGroupsView, corvel);
    ASSERT_TRUE(stage.waitFor([&] { return updatingRows() > 4; }));
    EXPECT_NE(text("updating..."), nullptr);
    // One row at a time, from the top, and only those that are seen.
    ASSERT_TRUE(stage.waitFor([&] { return !isUpdating(row(0)); }));
    EXPECT_TRUE(isUpdating(row(1)));
    EXPECT_LE(asked(), resources(1));
    const int seen = static_cast<int>(stage.items("TableRow").size());
    ASSERT_LT(seen, list->tableView()->rows());
    for (int waits = 0; updatingRows() > 0 && waits < 5; ++waits) {
        stage.waitFor([&] { return updatingRows() == 0; });
    }
    EXPECT_EQ(updatingRows(), 0);
    EXPECT_EQ(asked(), resources(seen - 1));
    // Less than a row asks for, more than a busy machine takes for a frame.
    EXPECT_LT(longest, 8 * latency);

    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(list->searchBar()->isActive());
    click(row(0));
    EXPECT_EQ(top(), list);

    // A row that comes into view asks, and whoever leaves is not kept: what is left is not asked.
    press(Qt::Key_End);
    ASSERT_TRUE(stage.waitFor([&] { return updatingRows() > 0 && asked() > resources(seen - 1); }));
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return top() == &stage.list(); }));
    const int left = asked();
    stage.settle(4 * latency);
    EXPECT_LE(asked(), left + 1);
}

} // namespace
} // namespace lodestar::scenes
