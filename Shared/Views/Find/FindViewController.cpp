// SPDX-License-Identifier: Apache-2.0
#include "Views/Find/FindViewController.h"

#include "Fleet/RecentSearches.h"
#include "Kit/Core/NavigationController.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/CellText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/Scenes.h"
#include "Views/Find/FindListController.h"
#include "Views/Find/FindRows.h"
#include "Views/Find/FindText.h"
#include "Views/Find/OpenFind.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double rowHeight = 44; // of the least; most are higher
constexpr double separatorLeft = 10;
constexpr double separatorRight = 15;

/// What can be found, with an example of each.
struct Hint {
    const char* picture;
    const char* name;
    const char* example;
};
constexpr std::array<Hint, 4> hints = {{
    {"managed_systems", QT_TRANSLATE_NOOP("lodestar::FindViewController", "Names"),
     QT_TRANSLATE_NOOP("lodestar::FindViewController", "helios-03, vios-harbour-2b, Ledger production")},
    {"connection", QT_TRANSLATE_NOOP("lodestar::FindViewController", "Addresses and serials"),
     QT_TRANSLATE_NOOP("lodestar::FindViewController", "192.0.2.63, corvel-b, 06A17C2, 4210")},
    {"info", QT_TRANSLATE_NOOP("lodestar::FindViewController", "Reference codes"),
     QT_TRANSLATE_NOOP("lodestar::FindViewController", "X417-2208, or just X417")},
    {"serviceable_events", QT_TRANSLATE_NOOP("lodestar::FindViewController", "Event numbers and texts"),
     QT_TRANSLATE_NOOP("lodestar::FindViewController", "#1042, power supply")},
}};

FindCell cellOf(const Hint& hint)
{
    FindCell cell;
    cell.picture = QLatin1String(hint.picture);
    cell.name.text = FindViewController::tr(hint.name);
    cell.line.text = FindViewController::tr(hint.example);
    cell.selectable = false;
    cell.accessibleText = spoken({cell.name.text, cell.line.text});
    return cell;
}

} // namespace

int FindViewController::Kind::rows() const
{
    return static_cast<int>(std::min(found.size(), mostRows + 1));
}

FindViewController::FindViewController() : m_tableView(*this, TableKind::Main)
{
    m_tableView.setRowHeight(rowHeight);
    m_tableView.setSeparatorInset(separatorLeft, separatorRight);
    m_clearButton.setHidden(true);
    m_noDataHeadline.setHidden(true);
    m_noDataLabel.setHidden(true);
}

void FindViewController::viewDidLoad()
{
    setTitle(tr("Find on all consoles"));
    setBackTitle(QStringLiteral(""));
    m_keeper = FleetSearchKeeper::shared();
    m_observation = NotificationCenter::defaultCenter().addObserver(
        "FleetSearchDidChange", [this] { m_tableView.whenUntouched([this] { update(Reload::Fading); }); });
    connect(&m_searchBar, &SearchBarOutlet::textChanged, this, [this] { update(Reload::AtOnce); });
}

void FindViewController::viewDidAppear()
{
    // Only now, when the list has its size: one that is made with its rows scrolls to the first and hides its heading.
    // Later, a text may have been kept meanwhile.
    update(Reload::AtOnce);
}

void FindViewController::look(const QString& text)
{
    if (!text.isEmpty()) {
        m_searchBar.setText(text);
    }
    m_searchBar.becomeFirstResponder();
}

void FindViewController::keepText()
{
    if (m_looksFor) {
        RecentSearches::add(m_searchBar.text().trimmed().toStdString());
    }
}

void FindViewController::clearRecents()
{
    RecentSearches::clear();
    update(Reload::Fading);
}

void FindViewController::update(Reload reload)
{
    m_search = m_keeper->search();
    const std::string text = m_searchBar.text().toStdString();
    m_wanted = FleetSearch::wanted(text);
    m_looksFor = m_search != nullptr ? m_search->looksFor(text) : !m_wanted.empty();
    m_kinds.clear();
    if (m_search != nullptr && m_looksFor) {
        FoundObjects found = m_search->find(text);
        for (std::size_t kind = 0; kind < found.size(); ++kind) {
            if (!found.at(kind).empty()) {
                m_kinds.push_back({kind, std::move(found.at(kind))});
            }
        }
    }
    updateRecents();
    // First, since a table that comes to be seen asks for its rows.
    if (reload == Reload::Fading) {
        m_tableView.reloadRows();
    } else {
        m_tableView.reloadData();
    }
    showLook();
}

void FindViewController::updateRecents()
{
    m_recents.clear();
    if (!m_looksFor) {
        for (std::string& text : RecentSearches::list()) {
            const QString count =
                m_search != nullptr ? FindText::count(*m_search, countOf(m_search->find(text))) : QString();
            m_recents.push_back({std::move(text), count});
        }
    }
}

void FindViewController::showLook()
{
    const bool isNothing = m_search != nullptr && m_looksFor && m_kinds.empty();
    if (isNothing) {
        m_noDataHeadline.setText(FindText::nothingFound(m_searchBar.text()));
        m_noDataLabel.setText(FindText::searched(*m_search));
    }
    m_tableView.setHidden(isNothing);
    m_noDataHeadline.setHidden(!isNothing);
    m_noDataLabel.setHidden(!isNothing);
    m_clearButton.setHidden(!hasRecents());
}

int FindViewController::numberOfSections(TableKind /*tableView*/) const
{
    return m_looksFor ? static_cast<int>(m_kinds.size()) : hasRecents() ? 2 : 1;
}

int FindViewController::numberOfRowsInSection(TableKind /*tableView*/, int section) const
{
    if (m_looksFor) {
        return m_kinds.at(static_cast<std::size_t>(section)).rows();
    }
    return static_cast<int>(isRecentSection(section) ? m_recents.size() : hints.size());
}

std::optional<QString> FindViewController::titleForHeaderInSection(TableKind /*tableView*/, int section) const
{
    if (m_looksFor) {
        return FindText::kind(m_kinds.at(static_cast<std::size_t>(section)).kind);
    }
    return isRecentSection(section) ? tr("Recent") : tr("What can be found");
}

QString FindViewController::detailForHeaderInSection(TableKind /*tableView*/, int section) const
{
    return m_looksFor ? FindText::count(*m_search, m_kinds.at(static_cast<std::size_t>(section)).found.size())
                      : QString();
}

QString FindViewController::footerForSection(TableKind tableView, int section) const
{
    if (m_search == nullptr || section != numberOfSections(tableView) - 1) {
        return {};
    }
    return m_looksFor ? FindText::notRead(*m_search) : FindText::things(*m_search, AgeClock::now());
}

std::size_t FindViewController::keyForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath) const
{
    // Headers and rows of the look without a text, and headers of kinds, have small numbers that differ.
    const auto section = static_cast<std::size_t>(indexPath.section);
    const std::size_t place = static_cast<std::size_t>(indexPath.row) + 1; // 0 for a header, whose row is -1
    if (!m_looksFor) {
        return isRecentSection(indexPath.section) ? 100 + place : 200 + place;
    }
    const Kind& kind = m_kinds.at(section);
    return indexPath.row < 0 || kind.isMore(indexPath.row)
               ? 300 + 100 * kind.kind + place
               : keyOf(*m_search, kind.found.at(static_cast<std::size_t>(indexPath.row)));
}

QVariant FindViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const auto row = static_cast<std::size_t>(indexPath.row);
    if (m_looksFor) {
        const Kind& kind = m_kinds.at(static_cast<std::size_t>(indexPath.section));
        return QVariant::fromValue(kind.isMore(indexPath.row) ? moreCell(*m_search, kind.found.size())
                                                              : cellOf(*m_search, kind.found.at(row), m_wanted));
    }
    if (!isRecentSection(indexPath.section)) {
        return QVariant::fromValue(cellOf(hints.at(row)));
    }
    const Recent& recent = m_recents.at(row);
    FindCell cell;
    cell.picture = QStringLiteral("recent");
    cell.quiet = true;
    cell.name.text = oneLine(QString::fromStdString(recent.text));
    cell.count = recent.count;
    cell.accessibleText = spoken({cell.name.text, cell.count});
    return QVariant::fromValue(cell);
}

void FindViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const auto row = static_cast<std::size_t>(indexPath.row);
    if (!m_looksFor) {
        if (isRecentSection(indexPath.section)) {
            m_searchBar.setText(QString::fromStdString(m_recents.at(row).text));
            keepText();
        }
        return;
    }
    keepText();
    const Kind& kind = m_kinds.at(static_cast<std::size_t>(indexPath.section));
    if (!kind.isMore(indexPath.row)) {
        openFound(*this, *m_search, kind.found.at(row));
    } else if (NavigationController* const stack = navigationController()) {
        stack->open(*this, makeController<FindListController>(kind.kind, m_searchBar.text().trimmed()));
    }
    m_tableView.deselectRow(indexPath);
}

void openFind(const ViewController& from, const QString& text)
{
    NavigationController* const stack = from.navigationController();
    if (stack == nullptr) {
        return;
    }
    if (auto* const shown = qobject_cast<FindViewController*>(stack->topViewController())) {
        shown->look(text);
    } else {
        openScene(from, Scenes::findView, {text});
    }
}

} // namespace lodestar
