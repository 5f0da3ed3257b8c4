// SPDX-License-Identifier: Apache-2.0
#include "Views/Dashboard/CorvelOverviewTableViewController.h"

#include "Inventory/Feed.h"
#include "Views/Common/Scenes.h"

namespace lodestar
{

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
    const auto opens = [this](Scene<CorvelRef> scene) { return [this, scene] { openScene(*this, scene, corvel()); }; };
    const auto opensPartitions = [this] {
        openScene(*this, Scenes::logicalPartitionsView, {.corvel = corvel(), .partitionName = {}});
    };
    return {{{tr("Managed Systems"), "managed_systems", opens(Scenes::managedSystemsView),
              countOf(ObjectType::ManagedSystem)},
             {tr("Virtual IO Servers"), "virtual_io_servers", opens(Scenes::viosView),
              countOf(ObjectType::VirtualIOServer)},
             {tr("Logical Partitions"), "logical_partitions", opensPartitions, countOf(ObjectType::LogicalPartition)},
             {tr("Resource Groups"), "resource_groups", opens(Scenes::resourceGroupsView), countOf(ObjectType::Group)}},
            {{tr("Serviceable Events"), "serviceable_events", opens(Scenes::serviceableEventsView),
              countOf(ObjectType::ServiceableEvent)}},
            {{tr("Management Console"), "management_console", opens(Scenes::managementConsoleView)}}};
}

} // namespace lodestar
