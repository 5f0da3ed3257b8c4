// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/FoldedChangesViewController.h"

#include "Fleet/ChangeTable.h"
#include "Views/Attention/ChangeText.h"

#include <utility>

namespace lodestar
{

FoldedChangesViewController::FoldedChangesViewController(std::shared_ptr<const ChangeList> list, ChangeRow row)
    : m_list(std::move(list)), m_row(std::move(row)), m_tableView(*this, TableKind::Main)
{
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Views/FoldedChangesScene.qml")));
    const FindingCell folded = ChangeText::cellOf(m_list->changes, m_row, true);
    m_header.setCustomNavigationBar();
    m_header.setHeaderTitle(folded.name, folded.sentence);
    setTitle(folded.name);
    setBackTitle(QStringLiteral(""));
    m_tableView.setRowHeight(60);
    m_tableView.setSeparatorInset(10, 15);
}

void FoldedChangesViewController::viewDidLoad()
{
    m_observation = NotificationCenter::defaultCenter().addObserver("AttentionDidChange", [this] {
        m_tableView.whenUntouched([this] {
            if (m_targets.follow()) {
                m_tableView.reloadData();
            }
        });
    });
    m_tableView.reloadData();
}

const Change& FoldedChangesViewController::changeAt(int row) const
{
    return m_list->changes.at(m_row.changes.at(static_cast<std::size_t>(row)));
}

Table FoldedChangesViewController::shownTable() const
{
    return tableOfChanges(m_list->changes, m_row.changes);
}

int FoldedChangesViewController::numberOfRowsInSection(TableKind /*tableView*/, int /*section*/) const
{
    return static_cast<int>(m_row.changes.size());
}

QVariant FoldedChangesViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const ChangeRow single{{m_row.changes.at(static_cast<std::size_t>(indexPath.row))}};
    return QVariant::fromValue(ChangeText::cellOf(m_list->changes, single, m_targets.leadsOn(changeAt(indexPath.row))));
}

void FoldedChangesViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    m_targets.open(changeAt(indexPath.row), *this);
    m_tableView.deselectRow(indexPath);
}

} // namespace lodestar
