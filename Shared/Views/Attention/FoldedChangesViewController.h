// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/ChangeDays.h"
#include "Fleet/History.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Platform/NotificationCenter.h"
#include "Views/Attention/ChangeTargets.h"
#include "Views/Common/ListShare.h"
#include "Views/Common/TitleHeader.h"

#include <memory>

namespace lodestar
{

/// The changes behind a folded row, each a row of its own. They stay as they were when the row was tapped; only what
/// they lead to follows the consoles.
class FoldedChangesViewController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(lodestar::TitleHeader* header READ header CONSTANT)
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::ListShare* share READ share CONSTANT)

public:
    FoldedChangesViewController(std::shared_ptr<const ChangeList> list, ChangeRow row);

    TitleHeader* header() { return &m_header; }
    TableOutlet* tableView() { return &m_tableView; }
    ListShare* share() { return &m_share; }

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    void viewDidLoad() override;

private:
    Table shownTable() const;
    const Change& changeAt(int row) const;

    const std::shared_ptr<const ChangeList> m_list;
    const ChangeRow m_row;
    TitleHeader m_header;
    TableOutlet m_tableView;
    ChangeTargets m_targets;
    NotificationCenter::Observation m_observation;
    ListShare m_share{[this] { return title(); }, [this] { return shownTable(); }};
};

} // namespace lodestar
