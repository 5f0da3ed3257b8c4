// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"
#include "Inventory/ResourceGroup.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/ResourceGroups/RGListViewController.h"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace lodestar::scenes
{
namespace
{

constexpr int latency = 80;

/// With a console that answers every look-up late.
class ResourceGroupsTest : public SceneTest
{
protected:
    void SetUp() override
    {
        simulator::Settings settings;
        settings.groups = 14;
        fleet.start(settings);
        stage.show({390, 520}, {});
        ServerTrust::shared().forgetAll();
        corvel = demoConsole();
        corvel->setDemo(false);
        corvel->setAddress(fleet.address(0));
        corvel->setUsername(fleet.user());
        corvel->setPassword(fleet.password());
        const auto fetched = fetchInventory(corvel);
        ASSERT_TRUE(stage.waitFor([&] { return fetched.isFulfilled(); }));
        fleet.clearRequests();
        fleet.setLatency(latency);
    }
    /// How many resources the groups from the first to the last have.
    int resources(int first, int last) const
    {
        const auto groups = recordsOf<ResourceGroup>(feedOfType(*corvel, ObjectType::Group));
        int count = 0;
        for (int place = first; place <= last; ++place) {
            count += static_cast<int>(groups.at(static_cast<std::size_t>(place)).members().size());
        }
        return count;
    }
    int asked() { return static_cast<int>(fleet.requests(0).size()); }
    static RGListCell cellOf(const QQuickItem* tableRow)
    {
        return tableRow->property("content").value<QQuickItem*>()->property("cell").value<RGListCell>();
    }
    int updatingRows() const
    {
        const auto rows = stage.items(QStringLiteral("TableRow"));
        return static_cast<int>(std::ranges::count_if(rows, [](auto* each) { return cellOf(each).isUpdating(); }));
    }

    simulator::SimulatorProcess fleet;
    CorvelRef corvel;
};

TEST_F(ResourceGroupsTest, TheScreenLivesWhileItsRowsAskForTheirStates)
{
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
    ASSERT_TRUE(stage.waitFor([&] { return !cellOf(row(0)).isUpdating(); }));
    EXPECT_TRUE(cellOf(row(1)).isUpdating());
    EXPECT_LE(asked(), resources(0, 1));
    const int seen = static_cast<int>(stage.items(QStringLiteral("TableRow")).size());
    ASSERT_LT(seen, list->tableView()->rows());
    for (int waits = 0; updatingRows() > 0 && waits < 5; ++waits) {
        stage.waitFor([&] { return updatingRows() == 0; });
    }
    EXPECT_EQ(updatingRows(), 0);
    EXPECT_EQ(asked(), resources(0, seen - 1));
    // Less than a row asks for, more than a busy machine takes for a frame.
    EXPECT_LT(longest, 8 * latency);

    // A row that comes into view asks, and whoever leaves is not kept: what is left is not asked.
    press(Qt::Key_End);
    ASSERT_TRUE(stage.waitFor([&] { return updatingRows() > 0 && asked() > resources(0, seen - 1); }));
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return top() == &stage.list(); }));
    const int left = asked();
    stage.settle(4 * latency);
    EXPECT_LE(asked(), left + 1);
}

} // namespace
} // namespace lodestar::scenes
