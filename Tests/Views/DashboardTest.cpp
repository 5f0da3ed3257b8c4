// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Dashboard/DashboardTableViewController.h"

#include <dirent.h>
#include <sched.h>
#include <thread>

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;

constexpr auto dashboardFile = "Shared/Views/Dashboard/DashboardTableViewController";

std::string feedOf(const std::string& type, const std::string& element, const std::vector<std::string>& states)
{
    std::string xml = "<feed>";
    for (const std::string& state : states) {
        xml += "<entry><content><" + type + ">";
        xml += state.empty() ? "" : "<" + element + ">" + state + "</" + element + ">";
        xml += "</" + type + "></content></entry>";
    }
    return xml + "</feed>";
}

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

class DashboardTest : public ViewsTest
{
protected:
    void SetUp() override
    {
        ViewsTest::SetUp();
        dashboard = makeController<DashboardTableViewController>();
        dashboard->loadViewIfNeeded();
    }
    void TearDown() override
    {
        dashboard.reset();
        ViewsTest::TearDown();
        EXPECT_TRUE(runUntil([] { return idleThreads() == 0; }));
    }
    static CorvelRef addFetched(const std::string& address, const std::map<std::string, Feed>& byType)
    {
        const CorvelRef corvel = addCorvel("Console", address);
        corvel->setRestData(feeds(byType));
        corvel->completedFetch = true;
        corvel->isOnline = true;
        return corvel;
    }
    static Feed systems(const std::vector<std::string>& states)
    {
        return Feed(parse(feedOf("ManagedSystem", "State", states)));
    }
    static Feed partitions(const std::vector<std::string>& states)
    {
        return Feed(parse(feedOf("LogicalPartition", "PartitionState", states)));
    }
    bool isShowingContent() const
    {
        bool hidden = dashboard->manSysPieChartView()->isHidden();
        const std::initializer_list<ViewOutlet*> views = {
            dashboard->corvelOnlineCount(),   dashboard->attentionLEDCount(),  dashboard->totalEventsCount(),
            dashboard->corvelOnlineStatus(),  dashboard->attentionLEDStatus(), dashboard->totalEventsStatus(),
            dashboard->CorvelOverviewLabel(), dashboard->managedSystemLabel(), dashboard->lparLabel()};
        for (const ViewOutlet* view : views) {
            EXPECT_EQ(view->isHidden(), hidden);
        }
        EXPECT_EQ(dashboard->lparPieChartView()->isHidden(), hidden);
        return !hidden;
    }
    bool isLoading() const
    {
        const bool loading = dashboard->manSysLoadingIndicator()->isAnimating();
        EXPECT_EQ(dashboard->manSysLoadingIndicator()->isHidden(), !loading);
        EXPECT_EQ(dashboard->lParLoadingIndicator()->isAnimating(), loading);
        return loading;
    }

    std::shared_ptr<DashboardTableViewController> dashboard;
};

TEST_F(DashboardTest, SumsWhatTheConsolesHoldAndLogsWhatTheyLack)
{
    const CorvelRef first =
        addFetched("a", {{"ManagedSystem", systems({"operating", "error", "", "operating", "Error"})},
                         {"LogicalPartition", Feed::notAvailable()},
                         {"ServiceableEvent", Feed(parse("<feed><entry/><entry/></feed>"))}});
    first->numMSLEDs = 2;
    const CorvelRef second = addFetched("b", {{"ManagedSystem", Feed::notAvailable()},
                                              {"LogicalPartition", partitions({"running", "not activated", "running"})},
                                              {"ServiceableEvent", Feed::notAvailable()}});
    second->numMSLEDs = 3;
    const CorvelRef offline = addFetched("c", {});
    offline->setRestData(nullptr);
    offline->isOnline = false;

    dashboard->createDashboard();
    EXPECT_EQ(dashboard->title(), "Dashboard");
    EXPECT_EQ(dashboard->corvelOnlineCount()->text(), "2 / 3");
    EXPECT_EQ(dashboard->attentionLEDCount()->text(), "5");
    EXPECT_EQ(dashboard->totalEventsCount()->text(), "2");
    EXPECT_TRUE(isShowingContent());

    const PieChartModel& systemPie = dashboard->manSysPieChartView()->model();
    EXPECT_EQ(systemPie.data.xVals, QStringList({"operating", "error", "Error"}));
    EXPECT_EQ(systemPie.data.dataSet.entries, QList<ChartEntry>({{2, 0}, {1, 1}, {1, 2}}));
    EXPECT_EQ(systemPie.data.dataSet.colors,
              QList<QColor>({UIColor::dashboardBlue(), UIColor::dashboardRed(), UIColor::dashboardGreen(),
                             UIColor::dashboardGrey(), UIColor::dashboardYellow()}));
    EXPECT_EQ(systemPie.valueText({3, 0}), "3");
    const PieChartModel& partitionPie = dashboard->lparPieChartView()->model();
    EXPECT_EQ(partitionPie.data.xVals, QStringList({"running", "not activated"}));
    EXPECT_EQ(partitionPie.data.dataSet.colors,
              QList<QColor>({UIColor::dashboardYellow(), UIColor::dashboardGreen(), UIColor::dashboardBlue(),
                             UIColor::dashboardGrey(), UIColor::dashboardOrange()}));
    EXPECT_EQ(systemPie.data.dataSet.valueFont.pixelSize(), 12);
    EXPECT_EQ(partitionPie.data.dataSet.valueFont.pixelSize(), 10);

    const std::vector<LoggedLine> log = lines(dashboardFile);
    ASSERT_EQ(log.size(), 3U);
    EXPECT_EQ(log[0].line, 147);
    EXPECT_EQ(log[0].message, "Logical partitions data isn't available for this Corvel, was it loaded?");
    EXPECT_EQ(log[1].line, 131);
    EXPECT_EQ(log[1].message, "Managed Systems data isn't available for this Corvel, was it loaded?");
    EXPECT_EQ(log[2].line, 154);
    EXPECT_EQ(log[2].message, "Serviceable data isn't available for this Corvel, was it loaded?");
    for (const LoggedLine& line : log) {
        EXPECT_EQ(line.level, 2);
        EXPECT_EQ(line.tag, 0);
        EXPECT_EQ(line.method, "-[DashboardTableViewController createDashboard]");
    }
}
TEST_F(DashboardTest, AttentionSumWrapsAtThirtyTwoBits)
{
    for (const char* address : {"a", "b"}) {
        addFetched(address, {})->numMSLEDs = std::numeric_limits<int>::max();
    }
    dashboard->createDashboard();
    EXPECT_EQ(dashboard->attentionLEDCount()->text(), "-2");
}

TEST_F(DashboardTest, WaitsOnAThreadAtIdlePriorityUntilEveryConsoleIsFetched)
{
    const CorvelRef first = addFetched("a", {});
    const CorvelRef second = addFetched("b", {});
    second->completedFetch = false;
    int animations = 0;
    QObject::connect(dashboard->manSysPieChartView(), &ChartView::animateRequested,
                     [&animations](const ChartAnimation& animation) {
                         ++animations;
                         EXPECT_EQ(animation.xDuration, 1.5);
                         EXPECT_EQ(animation.yDuration, 1.5);
                         EXPECT_EQ(static_cast<int>(animation.easing), 26);
                     });
    dashboard->beginAppearance();
    EXPECT_TRUE(isLoading());
    EXPECT_FALSE(isShowingContent());
    EXPECT_TRUE(runUntil([] { return idleThreads() == 1; }));
    // Shown again meanwhile: a second wait of its own.
    dashboard->endAppearance();
    dashboard->beginAppearance();
    EXPECT_TRUE(runUntil([] { return idleThreads() == 2; }));
    EXPECT_FALSE(isShowingContent());

    // A console that is added meanwhile is waited for as well.
    const CorvelRef third = addFetched("c", {});
    third->completedFetch = false;
    second->completedFetch = true;
    EXPECT_FALSE(runUntil([&] { return animations > 0; }, std::chrono::milliseconds(30)));
    third->completedFetch = true;
    EXPECT_TRUE(runUntil([&] { return animations == 2; }));
    EXPECT_TRUE(isShowingContent());
    EXPECT_FALSE(isLoading());
    EXPECT_EQ(dashboard->corvelOnlineCount()->text(), "3 / 3");

    // Back to the loading look at each appearance. A wait that takes long says whom it waits for.
    third->completedFetch = false;
    third->setName("Ridgeway");
    dashboard->endAppearance();
    dashboard->beginAppearance();
    EXPECT_TRUE(isLoading());
    EXPECT_FALSE(isShowingContent());
    LabelOutlet& waiting = *dashboard->waitingLabel();
    EXPECT_TRUE(waiting.isHidden());
    ASSERT_TRUE(runUntil([&] { return !waiting.isHidden(); }));
    EXPECT_EQ(waiting.text(), "Waiting for Ridgeway");
    first->completedFetch = false;
    ASSERT_TRUE(runUntil([&] { return waiting.text() == "Waiting for 2 of 3 consoles"; }));
    first->completedFetch = true;
    third->completedFetch = true;
    ASSERT_TRUE(runUntil([&] { return isShowingContent(); }));
    EXPECT_TRUE(waiting.isHidden());
}

TEST_F(DashboardTest, EmptyListStopsTheIndicatorsAndShowsNothing)
{
    dashboard->beginAppearance();
    EXPECT_TRUE(runUntil([&] { return !isLoading(); }));
    EXPECT_FALSE(isShowingContent());
    EXPECT_TRUE(dashboard->corvelOnlineCount()->text().isEmpty());
    EXPECT_FALSE(dashboard->noDataView()->isHidden());
    addFetched("a", {})->completedFetch = false;
    dashboard->endAppearance();
    dashboard->beginAppearance();
    EXPECT_TRUE(dashboard->noDataView()->isHidden());
}
} // namespace
} // namespace lodestar::testing
