// SPDX-License-Identifier: Apache-2.0
#include "Views/Find/FindListController.h"

#include "Fleet/ObjectTable.h"
#include "Views/Common/FeedName.h"
#include "Views/Find/FindRows.h"
#include "Views/Find/FindText.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr double rowHeight = 44; // of the least; most are higher
constexpr double separatorLeft = 10;
constexpr double separatorRight = 15;

} // namespace

FindListController::FindListController(std::size_t kind, QString text)
    : m_kind(kind),
      m_text(std::move(text)),
      m_wanted(FleetSearch::wanted(m_text.toStdString())),
      m_tableView(*this, TableKind::Main)
{
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Views/FindListScene.qml")));
    m_header.setCustomNavigationBar();
    m_header.setHeaderTitle(FindText::kind(kind), isolated(m_text));
    setTitle(FindText::kind(kind));
    setBackTitle(QStringLiteral(""));
    m_tableView.setRowHeight(rowHeight);
    m_tableView.setSeparatorInset(separatorLeft, separatorRight);
}

void FindListController::viewDidLoad()
{
    m_keeper = FleetSearchKeeper::shared();
    m_observation = NotificationCenter::defaultCenter().addObserver(
        "FleetSearchDidChange", [this] { m_tableView.whenUntouched([this] { update(); }); });
}

void FindListController::viewDidAppear()
{
    if (m_search == nullptr) {
        update();
    }
}

void FindListController::update()
{
    m_search = m_keeper->search();
    m_found.clear();
    if (m_search != nullptr) {
        m_found = std::move(m_search->find(m_wanted).at(m_kind));
    }
    // There may be very many rows, so they are not found again by keys.
    m_tableView.reloadData();
    const bool isNothing = m_search != nullptr && m_found.empty();
    if (isNothing) {
        m_noDataHeadline.setText(FindText::nothingFound(m_text));
        m_noDataLabel.setText(FindText::searched(*m_search));
    }
    m_tableView.setHidden(isNothing);
    m_noDataHeadline.setHidden(!isNothing);
    m_noDataLabel.setHidden(!isNothing);
}

QString FindListController::shareName() const
{
    //: The name of a file: what was found, such as "Managed Systems", and the text that found it
    return tr("%1, %2").arg(title(), m_text);
}

Table FindListController::shownTable() const
{
    return m_search != nullptr ? tableOfFound(*m_search, m_kind, m_found) : Table();
}

int FindListController::numberOfRowsInSection(TableKind /*tableView*/, int /*section*/) const
{
    return static_cast<int>(m_found.size());
}

QString FindListController::footerForSection(TableKind /*tableView*/, int /*section*/) const
{
    return m_search != nullptr ? FindText::notRead(*m_search) : QString();
}

QVariant FindListController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    return QVariant::fromValue(cellOf(*m_search, m_found.at(static_cast<std::size_t>(indexPath.row)), m_wanted));
}

void FindListController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    openFound(*this, *m_search, m_found.at(static_cast<std::size_t>(indexPath.row)));
    m_tableView.deselectRow(indexPath);
}

} // namespace lodestar
