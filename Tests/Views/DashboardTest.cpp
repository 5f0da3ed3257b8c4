// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/UIColor+Tessel.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Dashboard/DashboardTableViewController.h"

#include <dirent.h>
#include <sched.h>

namespace lodestar::testing
{
namespace
{

/// Threads of this process that run at idle priority.
int idleThreads()
{
    int count = 0;
    DIR* tasks = opendir("/proc/self/task");
    while (const dirent* task = readdir(tasks)) {
        count += sched_getscheduler(static_cast<pid_t>(std::atoi(task->d_name))) == SCHED_IDLE ? 1 : 0;
    }
    closedir(tasks);
    return count;
}

// What is seen while it waits, when it has waited, and when it had nothing to wait for.
constexpr auto loading = "lParLoadingIndicator manSysLoadingIndicator";
constexpr auto content =
    "attentionLEDCount attentionLEDStatus corvelOnlineCount corvelOnlineStatus corvelOverviewLabel "
    "lparLabel lparPieChartView manSysPieChartView managedSystemLabel totalEventsCount "
    "totalEventsStatus";

class DashboardTest : public ViewsTest
{
protected:
    DashboardTest() { dashboard->loadViewIfNeeded(); }
    ~DashboardTest() override
    {
        dashboard.reset();
        EXPECT_TRUE(runUntil([] { return idleThreads() == 0; }));
    }
    static CorvelRef addFetched(const std::string& address, const std::map<std::string, Feed>& byType = {})
    {
        const CorvelRef corvel = addCorvel("Console", address);
        corvel->setRestData(feeds(byType));
        corvel->completedFetch = true;
        corvel->isOnline = true;
        return corvel;
    }
    void appearAgain() const
    {
        dashboard->endAppearance();
        dashboard->beginAppearance();
    }
    bool comesTo(const char* look) const
    {
        return runUntil([&] { return seen(*dashboard) == look; });
    }

    std::shared_ptr<DashboardTableViewController> dashboard = makeController<DashboardTableViewController>();
};

TEST_F(DashboardTest, SumsWhatTheConsolesHoldAndLogsWhatTheyLack)
{
    const std::string running = entry("LogicalPartition", "<PartitionState>running</PartitionState>");
    const std::string off = entry("LogicalPartition", "<PartitionState>not activated</PartitionState>");
    addFetched("a", {{"ManagedSystem", Feed(parse("<feed>" + system("a", "operating") + system("b", "error") +
                                                  entry("ManagedSystem", "") + system("d", "operating") +
                                                  system("e", "Error") + "</feed>"))},
                     {"LogicalPartition", Feed::notAvailable()},
                     {"ServiceableEvent", Feed(parse("<feed><entry/><entry/></feed>"))}})
        ->numMSLEDs = 2;
    addFetched("b", {{"ManagedSystem", Feed::notAvailable()},
                     {"LogicalPartition", Feed(parse("<feed>" + running + off + running + "</feed>"))},
                     {"ServiceableEvent", Feed::notAvailable()}})
        ->numMSLEDs = 3;
    const CorvelRef offline = addCorvel("Console", "c");
    dashboard->createDashboard();
    EXPECT_EQ(dashboard->title(), "Dashboard");
    EXPECT_EQ(dashboard->corvelOnlineCount()->text(), "2 / 3");
    EXPECT_EQ(dashboard->attentionLEDCount()->text(), "5");
    EXPECT_EQ(dashboard->totalEventsCount()->text(), "2");
    EXPECT_EQ(seen(*dashboard), content);

    const PieChartModel& systemPie = dashboard->manSysPieChartView()->model();
    EXPECT_EQ(systemPie.data.xVals, QStringList({"operating", "error", "Error"}));
    EXPECT_EQ(systemPie.data.dataSet.entries, QList<ChartEntry>({{2, 0}, {1, 1}, {1, 2}}));
    EXPECT_EQ(systemPie.data.dataSet.colors,
              QList<QColor>({UIColor::dashboardBlue(), UIColor::dashboardRed(), UIColor::dashboardGreen(),
                             UIColor::dashboardGrey(), UIColor::dashboardYellow()}));
    EXPECT_EQ(systemPie.data.dataSet.valueFont.pixelSize(), 12);
    EXPECT_EQ(systemPie.valueText({3, 0}), "3");
    const PieChartModel& partitionPie = dashboard->lparPieChartView()->model();
    EXPECT_EQ(partitionPie.data.xVals, QStringList({"running", "not activated"}));
    EXPECT_EQ(partitionPie.data.dataSet.colors,
              QList<QColor>({UIColor::dashboardYellow(), UIColor::dashboardGreen(), UIColor::dashboardBlue(),
                             UIColor::dashboardGrey(), UIColor::dashboardOrange()}));
    EXPECT_EQ(partitionPie.data.dataSet.valueFont.pixelSize(), 10);

    const auto lacks = [](const std::string& start, const char* what) {
        return start + " createDashboard: " + what + " data isn't available for this Corvel, was it loaded?";
    };
    EXPECT_THAT(
        log("Shared/Views/Dashboard/DashboardTableViewController"),
        ElementsAre(lacks("147", "Logical partitions"), lacks("131", "Managed Systems"), lacks("154", "Serviceable")));
    // The sum is one of 32 bits.
    offline->numMSLEDs = std::numeric_limits<int>::max();
    dashboard->createDashboard();
    EXPECT_EQ(dashboard->attentionLEDCount()->text(), "-2147483644");
}

TEST_F(DashboardTest, WaitsOnAThreadAtIdlePriorityUntilEveryConsoleIsFetched)
{
    const CorvelRef first = addFetched("a");
    const CorvelRef second = addFetched("b");
    second->completedFetch = false;
    std::vector<ChartAnimation> animations;
    QObject::connect(dashboard->manSysPieChartView(), &ChartView::animateRequested,
                     [&animations](const ChartAnimation& animation) { animations.push_back(animation); });
    dashboard->beginAppearance();
    EXPECT_EQ(seen(*dashboard), loading);
    EXPECT_TRUE(runUntil([] { return idleThreads() == 1; }));
    // Shown again meanwhile: a second wait of its own.
    appearAgain();
    EXPECT_TRUE(runUntil([] { return idleThreads() == 2; }));

    // A console that is added meanwhile is waited for as well.
    const CorvelRef third = addFetched("c");
    third->completedFetch = false;
    second->completedFetch = true;
    EXPECT_FALSE(runUntil([&] { return !animations.empty(); }, std::chrono::milliseconds(30)));
    third->completedFetch = true;
    ASSERT_TRUE(runUntil([&] { return animations.size() == 2; }));
    EXPECT_EQ(animations[1].xDuration, 1.5);
    EXPECT_EQ(animations[1].yDuration, 1.5);
    EXPECT_EQ(animations[1].easing, ChartEasingOption::EaseOutBack);
    EXPECT_EQ(seen(*dashboard), content);

    // Back to the loading look at each appearance. A wait that takes long says whom it waits for.
    third->completedFetch = false;
    third->setName("Ridgeway");
    appearAgain();
    EXPECT_EQ(seen(*dashboard), loading);
    const LabelOutlet& waiting = *dashboard->waitingLabel();
    ASSERT_TRUE(runUntil([&] { return !waiting.isHidden(); }));
    EXPECT_EQ(waiting.text(), "Waiting for Ridgeway");
    first->completedFetch = false;
    ASSERT_TRUE(runUntil([&] { return waiting.text() == "Waiting for 2 of 3 consoles"; }));
    first->completedFetch = true;
    third->completedFetch = true;
    EXPECT_TRUE(comesTo(content));

    // Without a console there is nothing to wait for, and nothing to show.
    RESTHandler::sharedInstance().setCorvelList({});
    appearAgain();
    EXPECT_TRUE(comesTo("noDataView"));
}

} // namespace
} // namespace lodestar::testing
