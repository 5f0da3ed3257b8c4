// SPDX-License-Identifier: Apache-2.0
#include "Views/Dashboard/MSOverViewController.h"

#include "Inventory/ManagedSystem.h"
#include "Views/Common/CellText.h"
#include "Views/Common/Scenes.h"

namespace lodestar
{

void MSOverViewController::viewDidLoad()
{
    MenuTableViewController::viewDidLoad();
    setTitle(tr("Managed System"));
}

MenuTableViewController::Sections MSOverViewController::makeSections() const
{
    // The row without a scene names the system that the menu is for.
    const ManagedSystem shown(system());
    const auto opensPerformance = [this] {
        openScene(*this, Scenes::pcmDataView, {.corvel = corvel(), .sysName = {}, .systemID = firstSystemID()});
    };
    const auto opensPartitions = [this] {
        openScene(*this, Scenes::logicalPartitionsView,
                  {.corvel = corvel(), .partitionName = ManagedSystem(system()).name()});
    };
    const auto opensInformation = [this] { openScene(*this, Scenes::managedSystemInfo, system()); };
    return {{{tr("Performance Monitoring"), "performance", opensPerformance}},
            {{textOf(shown.name()), "managed_systems", {}, textOf(shown.state())},
             {tr("Logical Partitions"), "logical_partitions", opensPartitions}},
            {{tr("System Information"), "info", opensInformation}}};
}

std::optional<std::string> MSOverViewController::firstSystemID() const
{
    // The feed's first system is charted, whichever system the menu is for. That is meant.
    const Feed feed = corvel() ? feedOfType(*corvel(), ObjectType::ManagedSystem) : Feed::notAvailable();
    return ManagedSystem::identifierAt(feed, 0);
}

} // namespace lodestar
