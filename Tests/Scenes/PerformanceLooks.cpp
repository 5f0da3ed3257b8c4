// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Scenes/Looks.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

namespace lodestar::scenes
{
namespace
{

/// Growing in takes this long, and a little more.
constexpr int grown = 3300;

PCMViewController& openPerformance(SceneStage& stage, CorvelRef corvel, const char* name = "helios-01")
{
    const auto id = feedOfType(*corvel, ObjectType::ManagedSystem)
                        .root()
                        .path({"entry", "content", "ManagedSystem", "Metadata", "Atom", "AtomID"})
                        .text();
    return *stage.open<PCMViewController>("pcmDataView",
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

/// The metrics of a simulated console with a fault.
void showSimulated(SceneStage& stage, const char* fault)
{
    simulator::SimulatorProcess simulated{{}};
    simulated.setFault(fault);
    const CorvelRef corvel = simulatedConsole(stage, simulated);
    const auto feed = RESTHandler::sharedInstance().fetchDataOfType(
        ObjectType::ManagedSystem, corvel, "uom",
        RESTHandler::sharedInstance().login(corvel, CheckToken::No).result()->value());
    stage.waitFor([&] { return !feed.isPending(); });
    auto feeds = std::make_shared<FeedDictionary>();
    feeds->setFeed(ObjectType::ManagedSystem, Feed(feed.result()->value()));
    corvel->setRestData(feeds);
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
         [](SceneStage& stage) { waitForChart(stage, openPerformance(stage, demoConsole())); }, true},
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
