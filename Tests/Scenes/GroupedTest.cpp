// SPDX-License-Identifier: Apache-2.0
#include "Tests/Scenes/SceneTest.h"
#include "Views/LogicalPartitions/LPDetailViewController.h"
#include "Views/LogicalPartitions/LPListViewController.h"
#include "Views/VIOS/VIOSViewController.h"

namespace lodestar::scenes
{
namespace
{

class GroupedTest : public SceneTest
{
protected:
    template <typename Controller, typename Input>
    Controller* openList(Scene<Input> scene, std::type_identity_t<Input> input)
    {
        stage.show({390, 844}, fleet());
        return &stage.openList<Controller>(scene, std::move(input));
    }
    QQuickItem* swipe(int index) const { return row(index)->property("swipe").value<QQuickItem*>(); }
    double reveal(int index) const { return swipe(index)->property("reveal").toDouble(); }
    /// Leaves the button down.
    void dragFrom(const QPoint& from, int by) const
    {
        QTest::mousePress(&stage.window(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 10; ++step) {
            QTest::mouseMove(&stage.window(), from + QPoint(by * step / 10, 0));
            QCoreApplication::processEvents();
        }
    }
};

TEST_F(GroupedTest, AServersButtonsAreShownAndDoNothing)
{
    QAccessible::setActive(true);
    VIOSViewController* const list = openList<VIOSViewController>(Scenes::viosView, demoConsole());
    const auto spoken = [](QQuickItem* item) {
        return QAccessible::queryAccessibleInterface(item)->text(QAccessible::Name);
    };
    const QPoint from = centerOf(row(1));
    const auto letGo = [&](int by) { QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, from + QPoint(by, 0)); };
    const auto buttons = [&] {
        std::vector<QQuickItem*> shown;
        for (QQuickItem* item : stage.buttons()) {
            if (item->property("picture").isValid()) {
                shown.push_back(item);
            }
        }
        return shown;
    };
    dragFrom(from, 180);
    letGo(180);
    ASSERT_TRUE(stage.waitFor([&] { return reveal(1) == -144; }));
    ASSERT_EQ(buttons().size(), 2U);
    EXPECT_EQ(buttons()[0]->property("picture"), "check");
    EXPECT_EQ(spoken(buttons()[0]), "Check");
    EXPECT_EQ(spoken(buttons()[1]), "Favourite");
    EXPECT_LT(buttons()[0]->mapToScene({}).x(), buttons()[1]->mapToScene({}).x());
    click(buttons()[1]);
    ASSERT_TRUE(stage.waitFor([&] { return reveal(1) == 0; }));

    // Far enough, the first fills what is uncovered.
    dragFrom(from, 260);
    ASSERT_TRUE(stage.waitFor([&] { return buttons().at(0)->width() >= -reveal(1); }));
    EXPECT_GT(-reveal(1), 216);
    letGo(260);
    ASSERT_TRUE(stage.waitFor([&] { return reveal(1) == 0; }));
    EXPECT_EQ(top(), list);
}

TEST_F(GroupedTest, PartitionsOpenFromTheListAndFromItsSearch)
{
    QAccessible::setActive(true);
    LPListViewController* const list =
        openList<LPListViewController>(Scenes::logicalPartitionsView, {.corvel = demoConsole(), .partitionName = {}});
    EXPECT_NE(text("demo placeholder"), nullptr);
    EXPECT_EQ(spokenAs(row(1)), "scheduled-jobs, General purpose, shutting down, N210-0004");
    list->showSearchBar();
    type("ledger-db");
    ASSERT_TRUE(
        stage.waitFor([&] { return text("scheduled-jobs") == nullptr && text("ledger-db-standby") != nullptr; }));
    press(Qt::Key_Down);
    EXPECT_TRUE(swipe(1)->property("focusShown").toBool());
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_TRUE(stage.waitFor([&] { return qobject_cast<LPDetailViewController*>(top()) != nullptr; }));
    ASSERT_TRUE(stage.waitFor([&] { return text("Partition Details") != nullptr; }));
    EXPECT_NE(text("ledger-db-standby"), nullptr);
}

TEST_F(GroupedTest, AHeaderWithoutRowsIsStillAnEmptyList)
{
    // Nobody has logged on to it: no look-up answers.
    const CorvelRef corvel = demoConsole();
    corvel->setDemo(false);
    openList<LPListViewController>(Scenes::logicalPartitionsView, {.corvel = corvel, .partitionName = "elsewhere"});
    EXPECT_NE(text("Unknown system"), nullptr);
    EXPECT_NE(text("There are no partitions here."), nullptr);
}

} // namespace
} // namespace lodestar::scenes
