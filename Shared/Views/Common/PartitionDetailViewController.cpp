// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/PartitionDetailViewController.h"

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
    const auto text = [this](std::string_view name) { return rootXML().child(name).text(); };
    setTableData({{{row(tr("Name"), text("PartitionName")), row(tr("ID"), text("PartitionID")),
                    row(tr("Type"), text("PartitionType"))}}});
}

} // namespace lodestar
