// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/PartitionDetailViewController.h"

#include "Inventory/Partition.h"

#include <string>
#include <string_view>

namespace lodestar
{

PartitionDetailViewController::PartitionDetailViewController(std::string_view fileName, const QString& title)
    : m_log(fileName)
{
    setTitle(title);
    setSectionTitles({tr("Main Information")});
}

void PartitionDetailViewController::viewDidLoad()
{
    log().write(23, "viewDidLoad", std::string(log().className()) + " instantiation");
    populatePartitionDetails();
    setBackTitle(QStringLiteral(""));
}

void PartitionDetailViewController::populatePartitionDetails()
{
    const Partition partition(rootXML());
    setTableData({DetailSection{row(tr("Name"), partition.name()), row(tr("ID"), partition.identifier()),
                                row(tr("Type"), partition.kind())}});
}

} // namespace lodestar
