// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetUnusableViewController.h"

#include "Views/FleetSheet/FleetRowCell.h"

#include <utility>

namespace lodestar
{

FleetUnusableViewController::FleetUnusableViewController() : m_tableView(*this, TableKind::Main)
{
    setTitle(tr("Cannot be used"));
    m_tableView.setRowHeight(50);
    m_tableView.setSeparatorInset(10, 15);
}

void FleetUnusableViewController::setSheet(std::shared_ptr<const FleetSheet> sheet)
{
    m_sheet = std::move(sheet);
    m_rows.clear();
    for (const SheetRow& row : m_sheet->rows) {
        if (row.isUnusable()) {
            m_rows.push_back(&row);
        }
    }
    m_tableView.reloadData();
}

int FleetUnusableViewController::numberOfRowsInSection(TableKind /*tableView*/, int /*section*/) const
{
    return static_cast<int>(m_rows.size());
}

QVariant FleetUnusableViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    return QVariant::fromValue(FleetRowCell::ofUnusable(*m_rows[static_cast<std::size_t>(indexPath.row)]));
}

} // namespace lodestar
