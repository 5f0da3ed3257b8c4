// SPDX-License-Identifier: Apache-2.0
#include "Views/LogicalPartitions/LPListViewController.h"

#include "Inventory/Partition.h"
#include "Views/Common/CellText.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

constexpr GroupedListTraits traits = {
    .list =
        {
            .fileName = "Shared/Views/LogicalPartitions/LPListViewController",
            .instantiationLine = 36,
            .type = ObjectType::LogicalPartition,
            .title = QT_TRANSLATE_NOOP("FeedListViewController", "Logical Partitions"),
            .newDataFetch = {"fetchNewRESTData", 159},
            .noDataImage = "no_data_partitions",
            .noDataText =
                QT_TRANSLATE_NOOP("FeedListViewController", "Partitions could not be loaded. Refresh to try again."),
            .emptyText = QT_TRANSLATE_NOOP("FeedListViewController", "There are no partitions here."),
        },
    .seperatingLine = 191,
    .partitionLine = 194,
    .linkLine = 197,
    .nameless = Nameless::Grouped,
    .detailScene = Scenes::logicalPartitionsDetail,
};

} // namespace

LPListViewController::LPListViewController() : GroupedListViewController(traits) {}

void LPListViewController::viewDidLoad()
{
    if (corvel() && corvel()->demo() == 1) {
        m_partitionName.reset();
    }
    GroupedListViewController::viewDidLoad();
}

int LPListViewController::numberOfSections(TableKind tableView) const
{
    return m_partitionName ? 1 : GroupedListViewController::numberOfSections(tableView);
}

int LPListViewController::numberOfRowsInSection(TableKind tableView, int section) const
{
    return m_partitionName ? static_cast<int>(groupNamed(tableView, *m_partitionName).size())
                           : GroupedListViewController::numberOfRowsInSection(tableView, section);
}

std::optional<QString> LPListViewController::titleForHeaderInSection(TableKind tableView, int section) const
{
    return m_partitionName && partitions().groupOf(*m_partitionName)
               ? QString::fromStdString(*m_partitionName)
               : GroupedListViewController::titleForHeaderInSection(tableView, section);
}

XMLElement LPListViewController::partitionAt(TableKind tableView, IndexPath indexPath) const
{
    XMLElement partition = GroupedListViewController::partitionAt(tableView, indexPath);
    if (!partition && m_partitionName) {
        // The section has more rows than the first group; the further rows show the system's own elements.
        partition = elementAt(groupNamed(tableView, *m_partitionName), indexPath.row);
    }
    return partition;
}

void LPListViewController::completeCell(PartitionCell& cell, const Partition& partition) const
{
    cell.typeLabel.text = textOf(partition.kind());
    cell.referenceCodeLabel.text = textOf(partition.referenceCode());
}

} // namespace lodestar
