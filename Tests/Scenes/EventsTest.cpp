// SPDX-License-Identifier: Apache-2.0
#include "Tests/Scenes/SceneTest.h"
#include "Views/ResourceGroups/RGListViewController.h"
#include "Views/ServiceableEvents/SEListViewController.h"

namespace lodestar::scenes
{
namespace
{

class EventsTest : public SceneTest
{
protected:
    template <typename List>
    List* openList(Scene<CorvelRef> scene, const std::map<std::string, std::string>& feeds = {})
    {
        QAccessible::setActive(true);
        stage.show({390, 844}, fleet());
        return &stage.openList<List>(scene, demoConsole(feeds));
    }
};

TEST_F(EventsTest, AnEventOpensItsFacts)
{
    openList<SEListViewController>(Scenes::serviceableEventsView);
    EXPECT_EQ(spokenAs(row(3)), "Approved (#1036), 1773263954");
    click(row(3));
    ASSERT_TRUE(stage.waitFor([&] { return text("Prob Mgmt Hardware Record") != nullptr; }));
    EXPECT_EQ(top()->title(), "Event Details");
    press(Qt::Key_End);
    ASSERT_TRUE(stage.waitFor([&] { return text("Processor board") != nullptr; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(stage.waitFor([&] { return text("Approved (#1036)") != nullptr; }));
}

TEST_F(EventsTest, GroupsAreReadOutWholeAndTakeNoPressAndNoSearch)
{
    auto* const list = openList<RGListViewController>(Scenes::resourceGroupsView);
    EXPECT_EQ(spokenAs(row(0)), "Ledger production, green, 8 Resources, 0 good, 0 off, 0 alert, 0 error");
    EXPECT_EQ(row(0)->height(), 75);
    EXPECT_EQ(stage.item("rightBarButton"), nullptr);
    press(Qt::Key_F, Qt::ControlModifier);
    click(row(0));
    EXPECT_FALSE(list->searchBar()->isActive());
    EXPECT_EQ(top(), list);
}

TEST_F(EventsTest, RowsHaveTheirHeightsInANarrowWindowAndWhateverAConsoleAnswers)
{
    const char* const named = "<entry><content><%1><%2>Two\nlines\r\nand more</%2></%1></content></entry>";
    const auto opening = [this](Scene<CorvelRef> scene) {
        return [this, scene](const CorvelRef& corvel) { stage.openList(scene, corvel); };
    };
    const auto openPartitions = [this](const CorvelRef& corvel) {
        stage.openList(Scenes::logicalPartitionsView, {.corvel = corvel, .partitionName = {}});
    };
    const struct {
        std::function<void(const CorvelRef&)> open;
        const char* type;
        const char* name;
        double height;
    } lists[] = {{opening(Scenes::resourceGroupsView), "Group", "GroupName", 75},
                 {opening(Scenes::managedSystemsView), "ManagedSystem", "SystemName", 50},
                 {openPartitions, "LogicalPartition", "PartitionName", 50},
                 {opening(Scenes::viosView), "VirtualIOServer", "PartitionName", 50}};
    for (const auto& each : lists) {
        const QString feed = "<feed>" + QString::fromLatin1(named).arg(each.type, each.name) + "</feed>";
        for (const std::map<std::string, std::string>& feeds :
             {std::map<std::string, std::string>(), {{each.type, feed.toStdString()}}}) {
            stage.show({320, 568}, fleet());
            each.open(demoConsole(feeds));
            for (const QQuickItem* const place : stage.items("TableRow")) {
                if (!place->property("isHeader").toBool()) {
                    EXPECT_EQ(place->height(), each.height) << each.type;
                }
            }
        }
    }
}
} // namespace
} // namespace lodestar::scenes
