// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"
#include "Inventory/ManagedSystem.h"
#include "Simulator/SimulatorProcess.h"
#include "Tools/Screenshots/Looks.h"
#include "Views/ManagedSystems/PCM/LargeChartViewController.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace lodestar::scenes
{
namespace
{

/// Milliseconds: a little more than the chart takes to grow in.
constexpr int grown = 3300;

PCMViewController& openPerformance(SceneStage& stage, CorvelRef corvel, const char* name = "helios-01")
{
    const auto id = ManagedSystem::identifierAt(feedOfType(*corvel, ObjectType::ManagedSystem), 0);
    return *stage.open<PCMViewController>(Scenes::pcmDataView,
                                          {.corvel = std::move(corvel), .sysName = std::string(name), .systemID = id});
}

void waitForChart(SceneStage& stage, PCMViewController& performance)
{
    stage.waitFor([&] { return !performance.chartView()->isHidden(); });
    stage.settle(grown);
}

void showMemory(SceneStage& stage)
{
    PCMViewController& performance = openPerformance(stage, demoConsole());
    stage.waitFor([&] { return !performance.chartView()->isHidden(); });
    performance.selectedSegmentedIndex(1);
    waitForChart(stage, performance);
}

LargeChartViewController& openLargeChart(SceneStage& stage)
{
    PCMViewController& performance = openPerformance(stage, demoConsole());
    stage.waitFor([&] { return !performance.chartView()->isHidden(); });
    performance.openLargeChart();
    stage.settle();
    return *qobject_cast<LargeChartViewController*>(stage.list().navigationController()->topViewController());
}

void read(LargeChartViewController& chart, double share)
{
    const PlotInterval whole = chart.chartView()->model().wholeX();
    chart.chartView()->setReadIndex(whole.from + share * whole.length());
}

/// Shows the metrics of a simulated console that has the fault.
void showSimulated(SceneStage& stage, const char* fault)
{
    simulator::SimulatorProcess simulated{{}};
    simulated.setFault(fault);
    const CorvelRef corvel = simulatedConsole(stage, simulated);
    const auto feed = fetchFeedWithStoredKey(corvel, ObjectType::ManagedSystem);
    stage.waitFor([&] { return !feed.isPending(); });
    corvel->setRestData(nullptr);
    setFeedOfType(*corvel, ObjectType::ManagedSystem, Feed(feed.result()->value()));
    waitForChart(stage, openPerformance(stage, corvel));
}

} // namespace

std::vector<Look> performanceLooks()
{
    return {
        {"performance-loading", fleet(),
         [](SceneStage& stage) {
             PCMViewController& performance = openPerformance(stage, demoConsole());
             stage.waitFor([&] { return !performance.chartView()->isHidden(); });
             performance.startLoadingIndicators();
             performance.header()->setHeaderTitle("helios-01", "updating...");
         },
         true},
        {"performance-processors", fleet(),
         [](SceneStage& stage) { waitForChart(stage, openPerformance(stage, demoConsole())); }, true, true},
        {"performance-summary", fleet(),
         [](SceneStage& stage) {
             waitForChart(stage, openPerformance(stage, demoConsole()));
             QKeyEvent end(QEvent::KeyPress, Qt::Key_End, Qt::NoModifier);
             QCoreApplication::sendEvent(&stage.window(), &end);
             stage.settle(100);
         },
         true},
        {"large-chart", fleet(), [](SceneStage& stage) { read(openLargeChart(stage), 0.62); }, true, true},
        {"large-chart-bars", fleet(),
         [](SceneStage& stage) {
             LargeChartViewController& chart = openLargeChart(stage);
             chart.setBarsShown(true);
             chart.chartView()->setViewport({0.55, 0, 0.2, 1});
             read(chart, 0.62);
         },
         true, true},
        {"performance-memory", fleet(), showMemory, true},
        {"performance-nulls", fleet(), [](SceneStage& stage) { showSimulated(stage, "nullMetrics"); }},
        {"performance-failed", fleet(), [](SceneStage& stage) { showSimulated(stage, "unprocessedMetrics"); }, true},
        {"performance-long-name", fleet(),
         [](SceneStage& stage) {
             waitForChart(stage, openPerformance(stage, demoConsole(), "atlas-archive-west-cold-storage-02"));
         }},
    };
}

} // namespace lodestar::scenes
