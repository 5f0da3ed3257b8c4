// SPDX-License-Identifier: Apache-2.0
#include "Views/Dashboard/CorvelOverviewTableViewController.h"

#include "Inventory/Feed.h"
#include "Views/Common/SceneInputs.h"

namespace lodestar
{
namespace
{

constexpr auto systemsScene = "managedSystemsView";
constexpr auto serversScene = "viosView";
constexpr auto partitionsScene = "logicalPartitionsView";
constexpr auto groupsScene = "resourceGroupsView";
constexpr auto eventsScene = "serviceableEventsView";
constexpr auto consoleScene = "managementConsoleView";

/// The scene of a row; empty for a row that leads nowhere.
std::string_view sceneOf(IndexPath indexPath)
{
    switch (indexPath.section) {
    case 0:
        switch (indexPath.row) {
        case 0:
            return systemsScene;
        case 1:
            return serversScene;
        case 2:
            return partitionsScene;
        default:
            return groupsScene;
        }
    case 1:
        return indexPath.row == 0 ? eventsScene : "";
    case 2:
        return indexPath.row == 0 ? consoleScene : "";
    default:
        return "";
    }
}

} // namespace

void CorvelOverviewTableViewController::viewDidLoad()
{
    MenuTableViewController::viewDidLoad();
    setBackTitle(QStringLiteral(""));
    setTitle(corvel() ? QString::fromStdString(corvel()->name().value_or("")) : QString());
}

QString CorvelOverviewTableViewController::countOf(std::string_view type) const
{
    if (!corvel() || !corvel()->restData()) {
        return {};
    }
    const Feed feed = feedOfType(*corvel(), type);
    return feed.isNA() ? tr("not loaded") : QString::number(feed.entryCount());
}

MenuTableViewController::Sections CorvelOverviewTableViewController::makeSections() const
{
    return {{{tr("Managed Systems"), "managed_systems", systemsScene, countOf(ObjectType::ManagedSystem)},
             {tr("Virtual IO Servers"), "virtual_io_servers", serversScene, countOf(ObjectType::VirtualIOServer)},
             {tr("Logical Partitions"), "logical_partitions", partitionsScene, countOf(ObjectType::LogicalPartition)},
             {tr("Resource Groups"), "resource_groups", groupsScene, countOf(ObjectType::Group)}},
            {{tr("Serviceable Events"), "serviceable_events", eventsScene, countOf(ObjectType::ServiceableEvent)}},
            {{tr("Management Console"), "management_console", consoleScene}}};
}

void CorvelOverviewTableViewController::openRow(IndexPath indexPath)
{
    openScene(*this, sceneOf(indexPath), {.corvel = corvel()});
}

} // namespace lodestar
