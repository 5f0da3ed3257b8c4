// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/FoldedListController.h"

#include "Fleet/AttentionTable.h"
#include "Views/Attention/FindingRows.h"
#include "Views/Attention/FindingText.h"
#include "Views/Common/AgeClock.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr double rowHeight = 60;
constexpr double separatorLeft = 10;
constexpr double separatorRight = 15;

} // namespace

FoldedListController::FoldedListController(std::shared_ptr<const Attention::Picture> picture, const FindingRow& row)
    : m_picture(std::move(picture)), m_tableView(*this, TableKind::Main)
{
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Views/FoldedListScene.qml")));
    for (const std::uint32_t each : row.findings) {
        m_keys.insert(keyOf(m_picture->findings.list[each]));
        m_rows.push_back({{each}});
    }
    m_header.setCustomNavigationBar();
    const QString title = FindingText::name(m_picture->findings, row);
    m_header.setHeaderTitle(title, FindingText::sentence(m_picture->findings, row, AgeClock::now()));
    setTitle(title);
    setBackTitle(QStringLiteral(""));
    m_tableView.setRowHeight(rowHeight);
    m_tableView.setSeparatorInset(separatorLeft, separatorRight);
}

void FoldedListController::viewDidLoad()
{
    m_observation = NotificationCenter::defaultCenter().addObserver("AttentionDidChange", [this] { follow(); });
    m_tableView.reloadRows();
}

void FoldedListController::viewDidAppear()
{
    m_clock = connect(&AgeClock::shared(), &AgeClock::ticked, this, &FoldedListController::follow);
    follow();
}

void FoldedListController::viewDidDisappear()
{
    disconnect(m_clock);
}

void FoldedListController::follow()
{
    m_tableView.whenUntouched([this] { adopt(); });
}

void FoldedListController::adopt()
{
    Attention::release(std::exchange(m_picture, Attention::shared().picture()));
    m_rows.clear();
    const std::vector<Finding>& list = m_picture->findings.list;
    for (std::uint32_t place = 0; place < list.size(); ++place) {
        if (m_keys.contains(keyOf(list[place]))) {
            m_rows.push_back({{place}});
        }
    }
    m_tableView.reloadRows();
}

Table FoldedListController::shownTable() const
{
    std::vector<std::uint32_t> rows;
    for (const FindingRow& row : m_rows) {
        rows.insert(rows.end(), row.findings.begin(), row.findings.end());
    }
    return tableOfFindings(m_picture->findings, rows);
}

int FoldedListController::numberOfRowsInSection(TableKind /*tableView*/, int /*section*/) const
{
    return static_cast<int>(m_rows.size());
}

std::size_t FoldedListController::keyForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath) const
{
    return keyOf(m_picture->findings, m_rows[static_cast<std::size_t>(indexPath.row)]);
}

QVariant FoldedListController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const FindingRow& row = m_rows[static_cast<std::size_t>(indexPath.row)];
    return QVariant::fromValue(cellOf(m_picture->findings, row, ConsoleShown::Yes, AgeClock::now()));
}

void FoldedListController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const FindingRow& row = m_rows[static_cast<std::size_t>(indexPath.row)];
    openFinding(*this, m_picture->findings.list[row.findings.front()]);
    m_tableView.deselectRow(indexPath);
}

void FoldedListController::expectStop(int row)
{
    if (row >= 0 && static_cast<std::size_t>(row) < m_rows.size()) {
        expectStops(m_picture->findings, m_rows[static_cast<std::size_t>(row)]);
    }
}

} // namespace lodestar
