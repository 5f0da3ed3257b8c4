// SPDX-License-Identifier: Apache-2.0
#include "Views/Dashboard/MSOverViewController.h"

#include "Inventory/ManagedSystem.h"
#include "Views/Common/CellText.h"

namespace lodestar
{
namespace
{

constexpr auto performanceScene = "pcmDataView";
constexpr auto partitionsScene = "logicalPartitionsView";
constexpr auto informationScene = "managedSystemInfo";

} // namespace

void MSOverViewController::viewDidLoad()
{
    MenuTableViewController::viewDidLoad();
    setTitle(tr("Managed System"));
}

QList<GaugeFigure> MSOverViewController::gauges() const
{
    return {{QRectF(15, 28, 110, 110), 100, 90, false, QColor(245, 94, 78)},
            {QRectF(85, 28, 110, 110), 100, 60, false, QColor(77, 186, 122)}};
}

MenuTableViewController::Sections MSOverViewController::makeSections() const
{
    // The row without a scene names the system that the menu is for.
    const ManagedSystem shown(system());
    return {{{tr("Performance Monitoring"), "performance", performanceScene}},
            {{textOf(shown.name()), "managed_systems", "", textOf(shown.state())},
             {tr("Logical Partitions"), "logical_partitions", partitionsScene}},
            {{tr("System Information"), "info", informationScene}}};
}

void MSOverViewController::openRow(IndexPath indexPath)
{
    if (indexPath == IndexPath{0, 0}) {
        openScene(*this, performanceScene, {.corvel = corvel(), .systemID = systemIDAtRow(indexPath.row)});
    } else if (indexPath == IndexPath{1, 1}) {
        openScene(*this, partitionsScene, {.corvel = corvel(), .partitionName = ManagedSystem(system()).name()});
    } else if (indexPath == IndexPath{2, 0}) {
        openScene(*this, informationScene, {.rootXML = system()});
    }
}

std::optional<std::string> MSOverViewController::systemIDAtRow(int row) const
{
    // The index is that of the selected row, which here is always 0. So the feed's first system is charted, whichever
    // system the menu is for. That is meant.
    const Feed feed = corvel() ? feedOfType(*corvel(), ObjectType::ManagedSystem) : Feed::notAvailable();
    return ManagedSystem::identifierAt(feed, static_cast<std::size_t>(row));
}

} // namespace lodestar
