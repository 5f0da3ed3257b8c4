// SPDX-License-Identifier: Apache-2.0
// The lists by managed system ask a console for the systems' names, so a simulated console answers here.
#include "Fleet/Registry.h"
#include "Inventory/Partition.h"
#include "Simulator/SimulatorProcess.h"
#include "Tools/Screenshots/Looks.h"

#include <array>

namespace lodestar::scenes
{
namespace
{

simulator::SimulatorProcess& simulated()
{
    static simulator::SimulatorProcess process([] {
        simulator::Settings settings;
        settings.systems = 5;
        settings.partitions = 3;
        settings.vios = 8;
        return settings;
    }());
    return process;
}

FeedListViewController& openPartitions(SceneStage& stage, std::optional<std::string> system = {})
{
    return stage.openList(Scenes::logicalPartitionsView,
                          {.corvel = simulatedConsole(stage, simulated()), .partitionName = std::move(system)});
}

FeedListViewController& openServers(SceneStage& stage)
{
    return stage.openList(Scenes::viosView, simulatedConsole(stage, simulated()));
}

/// A feed of partitions with names too long for any row. The console does not know their managed system.
std::string longNamedPartitions(const CorvelRef& corvel)
{
    const std::string console = "https://" + corvel->address().value() + ":12443/rest/api/uom/ManagedSystem/";
    std::string feed = "<feed>";
    for (const auto& [name, type, state, code] : std::vector<std::array<const char*, 4>>{
             {"Ledger-Migration-Second-Dress-Rehearsal-of-the-Western-Archive-2026", "Dedicated, shared on demand",
              "waiting for the service processor to answer", "X417-2208 0000A3C1 00000012"},
             {"ledger-db-primary-of-the-northern-harbour-district", "General purpose", "error", "X417-2208"},
             {"settled-archive-of-the-northern-harbour-district", "General purpose", "running", ""},
             {"q", "", "not activated", "00000000"},
             {"", "", "", ""}}) {
        feed += entryOf("LogicalPartition", "<AssociatedManagedSystem href=\"" + console + "gone\"/><PartitionName>" +
                                                name + "</PartitionName><PartitionType>" + type +
                                                "</PartitionType><PartitionState>" + state +
                                                "</PartitionState><ReferenceCode>" + code + "</ReferenceCode>");
    }
    return feed + "</feed>";
}

std::string systemNameOf(const CorvelRef& corvel, std::size_t index)
{
    const auto partitions = recordsOf<LogicalPartition>(feedOfType(*corvel, ObjectType::LogicalPartition));
    return fetchLinkedText(partitions.at(index).systemNameLink(), corvel).value_or("");
}

std::vector<Look> partitionLooks()
{
    return {
        {"partitions", fleet(), [](SceneStage& stage) { openPartitions(stage); }, true},
        {"partitions-search", fleet(), [](SceneStage& stage) { search(openPartitions(stage), "LED"); }, true},
        {"partitions-search-nothing", fleet(), [](SceneStage& stage) { search(openPartitions(stage), "zz"); }},
        {"partitions-narrowed", fleet(),
         [](SceneStage& stage) {
             const CorvelRef corvel = openPartitions(stage).corvel();
             openPartitions(stage, systemNameOf(corvel, 3));
         }},
        {"partitions-narrowed-empty", fleet(), [](SceneStage& stage) { openPartitions(stage, "elsewhere"); }},
        {"partitions-demo", fleet(),
         [](SceneStage& stage) {
             stage.openList(Scenes::logicalPartitionsView, {.corvel = demoConsole(), .partitionName = {}});
         }},
        {"partitions-long-names", fleet(),
         [](SceneStage& stage) {
             const CorvelRef corvel = simulatedConsole(stage, simulated());
             simulated().setFeed(0, "LogicalPartition", longNamedPartitions(corvel));
             stage.openList(Scenes::logicalPartitionsView, {.corvel = corvel, .partitionName = {}});
             simulated().resetFeed(0, "LogicalPartition");
         },
         true},
        {"partitions-loading", fleet(),
         [](SceneStage& stage) {
             FeedListViewController& list = openPartitions(stage);
             list.UILoadingData();
             list.setHeaderTitle("Logical Partitions", "updating...");
         }},
        {"partitions-failed", fleet(),
         [](SceneStage& stage) {
             stage.openList(Scenes::logicalPartitionsView,
                            {.corvel = demoConsole({{"LogicalPartition", ""}}), .partitionName = {}});
         },
         true},
        {"partitions-empty", fleet(),
         [](SceneStage& stage) {
             stage.openList(Scenes::logicalPartitionsView,
                            {.corvel = demoConsole({{"LogicalPartition", "<feed/>"}}), .partitionName = {}});
         }},
        {"partition-detail", fleet(), [](SceneStage& stage) { openPartitions(stage).tableView()->select(2); }, true},
    };
}

std::vector<Look> serverLooks()
{
    const auto expand = [](SceneStage& stage) {
        openServers(stage);
        stage.swipe(1);
        stage.settle(300);
        for (QQuickItem* place : stage.items(QStringLiteral("TableRow"))) {
            if (place->property("index").toInt() == 1) {
                QObject* const swipe = place->property("swipe").value<QObject*>();
                swipe->setProperty("reveal", -250);
                swipe->setProperty("expanded", true);
            }
        }
    };
    return {
        {"virtual-io-servers", fleet(), [](SceneStage& stage) { openServers(stage); }, true},
        {"virtual-io-servers-swiped", fleet(),
         [](SceneStage& stage) {
             openServers(stage);
             stage.swipe(1);
         },
         true},
        {"virtual-io-servers-swiped-idle", fleet(),
         [](SceneStage& stage) {
             openServers(stage);
             stage.swipe(4);
         }},
        {"virtual-io-servers-swiped-far", fleet(), expand},
        {"virtual-io-servers-failed", fleet(),
         [](SceneStage& stage) {
             stage.openList(Scenes::viosView, demoConsole({{"VirtualIOServer", ""}}));
         },
         true},
        {"virtual-io-servers-empty", fleet(),
         [](SceneStage& stage) {
             stage.openList(Scenes::viosView, demoConsole({{"VirtualIOServer", "<feed/>"}}));
         }},
        {"virtual-io-server-detail", fleet(), [](SceneStage& stage) { openServers(stage).tableView()->select(1); }},
    };
}

} // namespace

std::vector<Look> groupedLooks()
{
    std::vector<Look> looks = partitionLooks();
    for (Look& look : serverLooks()) {
        looks.push_back(std::move(look));
    }
    return looks;
}

} // namespace lodestar::scenes
