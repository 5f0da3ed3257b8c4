// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/CellHost.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/Dashboard/MSOverViewController.h"
#include "Views/ManagedSystems/MSDetailViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"

namespace lodestar::scenes
{
namespace
{

class InventoryTest : public SceneTest
{
protected:
    MSListViewController* openSystems(const std::map<std::string, std::string>& feeds = {})
    {
        stage.show({390, 844}, fleet());
        return &stage.openList<MSListViewController>(Scenes::managedSystemsView, demoConsole(feeds));
    }
    /// Of all rows that the table has items for, drawn or not.
    std::vector<const CellHost*> hostsIn(const TableOutlet& table) const
    {
        std::vector<const CellHost*> hosts;
        std::vector<const QQuickItem*> left = {stage.window().contentItem()};
        while (!left.empty()) {
            const QQuickItem* const item = left.back();
            left.pop_back();
            const QList<QQuickItem*> children = item->childItems();
            left.insert(left.end(), children.begin(), children.end());
            if (const auto* const host = qobject_cast<const CellHost*>(item); host && host->table() == &table) {
                hosts.push_back(host);
            }
        }
        return hosts;
    }
};

TEST_F(InventoryTest, FromTheConsoleListToASystemsFactsByPointer)
{
    QAccessible::setActive(true);
    stage.show({390, 844}, fleet());
    RESTHandler::sharedInstance().corvelList().front()->setRestData(demoConsole()->restData());
    click(row(0));
    ASSERT_TRUE(stage.waitFor([&] { return text("Management Console") != nullptr; }));
    stage.settle(200);
    EXPECT_EQ(spokenAs(row(0)), "Managed Systems, 10");
    click(row(0));
    ASSERT_TRUE(stage.waitFor([&] { return text("helios-03") != nullptr; }));
    stage.settle(200);
    EXPECT_NE(text("12 Mar 2026, 09:41"), nullptr);
    EXPECT_EQ(spokenAs(row(3)), "helios-04, incomplete, error, attention LED on");
    click(row(2));
    ASSERT_TRUE(stage.waitFor([&] { return button("System Information") != nullptr; }));
    stage.settle(200);
    EXPECT_TRUE(button("Performance Monitoring")->isEnabled());
    click(button("System Information"));
    ASSERT_TRUE(stage.waitFor([&] { return text("X417-2208") != nullptr; }));
    stage.settle(200);
    EXPECT_EQ(top()->title(), "helios-03");
    EXPECT_EQ(spokenAs(row(3)), "Reference Code, X417-2208");
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return text("helios-02") != nullptr; }));
}

TEST_F(InventoryTest, SearchByKeyboardMarksWhatItFinds)
{
    Appearance::shared().overrideMirrored(true);
    MSListViewController* const list = openSystems();
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(stage.waitFor([&] { return stage.items("SearchBar").size() == 1; }));
    type("LED");
    EXPECT_EQ(list->searchResultsTableView()->count(), 2);
    ASSERT_TRUE(stage.waitFor([&] { return text("helios-01") == nullptr && text("atlas-ledger-01") != nullptr; }));
    QQuickItem* const name = text("atlas-ledger-01");
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->property("matchStart").toInt(), 6);
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
    ASSERT_TRUE(stage.waitFor([&] { return button("System Information") != nullptr; }));
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
    ASSERT_TRUE(stage.waitFor([&] { return text("Nothing found.") != nullptr; }));
    click(button("Cancel"));
    EXPECT_TRUE(stage.waitFor([&] { return text("helios-01") != nullptr; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(stage.waitFor([&] { return top() == &stage.list(); }));
}

TEST_F(InventoryTest, TheThreeLooksShowNothingOfEachOther)
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
}

TEST_F(InventoryTest, TheMenuKeyUncoversTheWayToASystemsMenu)
{
    openSystems();
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    press(Qt::Key_Menu);
    ASSERT_TRUE(stage.waitFor([&] { return button("System menu") != nullptr; }));
    stage.settle(300);
    press(Qt::Key_Return);
    ASSERT_TRUE(stage.waitFor([&] { return qobject_cast<MSOverViewController*>(top()) != nullptr; }));
    ASSERT_TRUE(stage.waitFor([&] { return stage.items("CircleGauge").size() == 2; }));
    EXPECT_EQ(stage.items("CircleGauge")[1]->x(), 85);
    EXPECT_DOUBLE_EQ(stage.items("CircleGauge")[1]->property("drawn").toDouble(), 0.6);
    press(Qt::Key_End);
    press(Qt::Key_Return);
    EXPECT_TRUE(stage.waitFor([&] { return qobject_cast<MSDetailViewController*>(top()) != nullptr; }));
    EXPECT_EQ(top()->title(), "helios-02");
}

TEST_F(InventoryTest, AHundredThousandRowsMakeDelegatesForTheVisibleOnes)
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
    ASSERT_TRUE(stage.waitFor([&] { return text("node-99999") != nullptr; }));
    stage.settle(); // the row that has the keyboard is made before the list has come to it
    // Those that were left wait for their next use and cost a frame nothing, nor does any text ask for each frame.
    EXPECT_LE(stage.items("StateRow").size(), rows);
    std::size_t waiting = 0;
    for (const CellHost* const host : hostsIn(*list->tableView())) {
        EXPECT_EQ(host->property("pooled").toBool(), !host->isVisible());
        waiting += host->isVisible() ? 0U : 1U;
    }
    EXPECT_GT(waiting, 0U);
    click(stage.items("TitleView").front());
    ASSERT_TRUE(stage.waitFor([&] { return text("node-0") != nullptr; }));
    for (const QQuickItem* const item : stage.items("QQuickText")) {
        EXPECT_FALSE(item->flags().testFlag(QQuickItem::ItemObservesViewport)) << item->objectName().toStdString();
    }
    list->showSearchBar();
    list->searchBar()->setText("NODE-9999");
    EXPECT_EQ(list->searchResultsTableView()->count(), 11);
    EXPECT_TRUE(stage.waitFor([&] { return text("node-9999") != nullptr; }));
}

} // namespace
} // namespace lodestar::scenes
