// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSheet.h"
#include "Kit/Core/SpansColumns.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Views/Common/ListShare.h"

#include <memory>
#include <vector>

namespace lodestar
{

/// The rows of a sheet that cannot be used, and why. Main thread.
class FleetUnusableViewController : public lodestar::ViewController, public TableDataSource, public SpansColumns
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::ListShare* share READ share CONSTANT)

public:
    FleetUnusableViewController();

    void setSheet(std::shared_ptr<const FleetSheet> sheet);
    TableOutlet* tableView() { return &m_tableView; }
    ListShare* share() { return &m_share; }
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

private:
    std::shared_ptr<const FleetSheet> m_sheet;
    std::vector<const SheetRow*> m_rows; ///< of the sheet
    TableOutlet m_tableView;
    ListShare m_share{[this] { return title(); }, [this] { return tableOfUnusable(*m_sheet); }};
};

} // namespace lodestar
