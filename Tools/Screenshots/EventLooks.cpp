// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ServiceableEvent.h"
#include "Simulator/SimulatorProcess.h"
#include "Tools/Screenshots/Looks.h"

namespace lodestar::scenes
{
namespace
{

std::function<void(SceneStage&)> opening(Scene<CorvelRef> scene, const std::map<std::string, std::string>& feeds = {})
{
    return [scene, feeds](SceneStage& stage) { stage.openList(scene, demoConsole(feeds)); };
}

constexpr auto eventsScene = Scenes::serviceableEventsView;
constexpr auto groupsScene = Scenes::resourceGroupsView;

std::string longEvents()
{
    return "<feed>" +
           entryOf(
               "ServiceableEvent",
               "<problemNumber>1000000042</problemNumber><ApprovalState>Pending approval by the recovery site's own "
               "service desk</ApprovalState><lastReportedTimestamp>1773308460000000</lastReportedTimestamp>") +
           entryOf("ServiceableEvent", "<problemNumber>7</problemNumber><ApprovalState>Approved</ApprovalState>") +
           entryOf("ServiceableEvent", "") + "</feed>";
}

XMLElement demoEvent(std::size_t index)
{
    return recordsOf<ServiceableEvent>(feedOfType(*demoConsole(), ObjectType::ServiceableEvent)).at(index).element();
}

void scrollToEnd(const SceneStage& stage)
{
    for (QQuickItem* list : stage.items("QQuickListView")) {
        QMetaObject::invokeMethod(list, "positionViewAtEnd");
        list->setProperty("contentY",
                          list->property("contentY").toDouble() + list->property("bottomMargin").toDouble());
    }
    stage.settle();
}

std::vector<Look> eventLooks()
{
    return {
        {"serviceable-events", fleet(), opening(eventsScene), true},
        {"serviceable-events-long", fleet(), opening(eventsScene, {{"ServiceableEvent", longEvents()}}), true},
        {"serviceable-events-failed", fleet(), opening(eventsScene, {{"ServiceableEvent", ""}})},
        {"serviceable-events-empty", fleet(), opening(eventsScene, {{"ServiceableEvent", "<feed/>"}})},
        {"serviceable-events-search", fleet(),
         [](SceneStage& stage) { search(stage.openList(eventsScene, demoConsole()), "pending"); }, true},
        {"event-detail", fleet(), [](SceneStage& stage) { stage.open(Scenes::serviceableEventsDetail, demoEvent(0)); },
         true},
        {"event-detail-units", fleet(),
         [](SceneStage& stage) {
             stage.open(Scenes::serviceableEventsDetail, demoEvent(0));
             scrollToEnd(stage);
         },
         true},
        {"event-detail-bare", fleet(),
         [](SceneStage& stage) { stage.open(Scenes::serviceableEventsDetail, XMLElement::parse("<e/>").value()); }},
    };
}

/// The demonstration's groups cannot tell their members' states; a simulated console's can.
simulator::SimulatorProcess& console()
{
    static simulator::SimulatorProcess process({.groups = 10});
    return process;
}

/// Groups with hundreds of resources: a few of the console's own, repeated.
std::string longGroups(const Feed& groups)
{
    std::string links;
    for (const XMLElement& entry : groups.entries()) {
        for (const XMLElement& link :
             entry.path({"content", "Group", "AssociatedLogicalPartitions"}).children("link")) {
            links += "<link href='" + link.attribute("href").value() + "'/>";
        }
    }
    std::string many;
    for (int i = 0; i < 12; ++i) {
        many += links;
    }
    const auto group = [](const std::string& name, const std::string& color, const std::string& partitions) {
        return entryOf("Group", "<GroupName>" + name + "</GroupName><GroupColor>" + color +
                                    "</GroupColor><AssociatedLogicalPartitions>" + partitions +
                                    "</AssociatedLogicalPartitions>");
    };
    return "<feed>" + group("Migration rehearsal of the western archive, spring 2026", "Purple", many) +
           group("Unsorted", "Teal", links) + group("", "Pink", "") + entryOf("Other", "") + "</feed>";
}

std::vector<Look> groupLooks()
{
    return {
        {"resource-groups", fleet(),
         [](SceneStage& stage) { stage.openList(groupsScene, simulatedConsole(stage, console())); }, true},
        {"resource-groups-long", fleet(),
         [](SceneStage& stage) {
             const CorvelRef corvel = simulatedConsole(stage, console());
             FeedListViewController& list = stage.openList(groupsScene, corvel);
             console().setFeed(0, "Group", longGroups(feedOfType(*corvel, ObjectType::Group)));
             const auto fetched = list.fetchNewRESTData();
             stage.waitFor([&] { return !fetched.isPending(); });
             console().resetFeed(0, "Group");
         },
         true},
        {"resource-groups-demo", fleet(), opening(groupsScene)},
        {"resource-groups-failed", fleet(), opening(groupsScene, {{"Group", ""}})},
        {"resource-groups-empty", fleet(), opening(groupsScene, {{"Group", "<feed/>"}})},
    };
}

} // namespace

std::vector<Look> eventAndGroupLooks()
{
    std::vector<Look> looks = eventLooks();
    for (Look& look : groupLooks()) {
        looks.push_back(std::move(look));
    }
    return looks;
}

} // namespace lodestar::scenes
