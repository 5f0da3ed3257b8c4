// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Feed.h"
#include "Tools/Screenshots/Looks.h"

#include <array>

namespace lodestar::scenes
{
namespace
{

std::string longNamedSystems()
{
    std::string feed = "<feed>";
    for (const auto& [name, state, led] : std::vector<std::array<const char*, 3>>{
             {"recovery-site-of-the-northern-harbour-district-hall-2-rack-12", "operating", "false"},
             {"recovery-site-of-the-northern-harbour-district-hall-2-rack-48", "operating", "true"},
             {"recovery-site-of-the-northern-harbour-district-hall-3-rack-01",
              "incomplete, waiting for the service processor to answer", "true"},
             {"a", "error", "false"},
             {"", "", "false"}}) {
        feed += entryOf("ManagedSystem", std::string("<SystemName>") + name + "</SystemName><State>" + state +
                                             "</State><PhysicalSystemAttentionLEDState>" + led +
                                             "</PhysicalSystemAttentionLEDState>");
    }
    return feed + "</feed>";
}

FeedListViewController& openSystems(SceneStage& stage, const std::map<std::string, std::string>& feeds = {})
{
    return stage.openList(Scenes::managedSystemsView, demoConsole(feeds));
}

XMLElement demoSystem(const CorvelRef& corvel, std::size_t index)
{
    return feedOfType(*corvel, ObjectType::ManagedSystem).entries().at(index).path({"content", "ManagedSystem"});
}

std::vector<Look> systemLooks()
{
    return {
        {"managed-systems", fleet(), [](SceneStage& stage) { openSystems(stage); }, true},
        {"managed-systems-long-names", fleet(),
         [](SceneStage& stage) {
             openSystems(stage, {{"ManagedSystem", longNamedSystems()}});
         },
         true},
        {"managed-systems-loading", fleet(),
         [](SceneStage& stage) {
             FeedListViewController& list = openSystems(stage);
             list.UILoadingData();
             list.setHeaderTitle("Managed Systems", "updating...");
         }},
        {"managed-systems-failed", fleet(),
         [](SceneStage& stage) {
             openSystems(stage, {{"ManagedSystem", ""}});
         },
         true},
        {"managed-systems-empty", fleet(),
         [](SceneStage& stage) {
             openSystems(stage, {{"ManagedSystem", "<feed/>"}});
         }},
        {"managed-systems-actions", fleet(), [](SceneStage& stage) { openSystems(stage).tableView()->select(2); },
         true},
        {"managed-systems-search", fleet(), [](SceneStage& stage) { search(openSystems(stage), "LED"); }, true},
        {"managed-systems-search-nothing", fleet(), [](SceneStage& stage) { search(openSystems(stage), "zz"); }},
        {"managed-systems-swiped", fleet(),
         [](SceneStage& stage) {
             openSystems(stage);
             stage.swipe(2);
         },
         true},
        {"system-detail", fleet(),
         [](SceneStage& stage) { stage.open(Scenes::managedSystemInfo, demoSystem(demoConsole(), 2)); }, true},
        {"system-menu", fleet(),
         [](SceneStage& stage) {
             const CorvelRef corvel = demoConsole();
             stage.open(Scenes::managedSystemMenu, {.corvel = corvel, .system = demoSystem(corvel, 2)});
             stage.settle(1100);
         },
         true},
    };
}

std::vector<Look> consoleInventoryLooks()
{
    return {
        {"console-overview", fleet(),
         [](SceneStage& stage) {
             stage.open(Scenes::corvelTasksViewController, demoConsole({{"Group", ""}}));
         },
         true},
        {"console-information", fleet(),
         [](SceneStage& stage) { stage.open(Scenes::managementConsoleView, demoConsole()); }, true},
        {"console-information-failed", fleet(),
         [](SceneStage& stage) {
             stage.open(Scenes::managementConsoleView, demoConsole({{"ManagementConsole", ""}}));
         }},
    };
}

} // namespace

std::vector<Look> inventoryLooks()
{
    std::vector<Look> looks = consoleInventoryLooks();
    for (Look& look : systemLooks()) {
        looks.push_back(std::move(look));
    }
    return looks;
}

} // namespace lodestar::scenes
