// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/ChangesViewController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/ChangeTable.h"
#include "Inventory/Feed.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"
#include "Views/Attention/ChangeText.h"
#include "Views/Attention/FindingText.h"
#include "Views/Attention/FoldedChangesViewController.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/RowKey.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double rowHeight = 60;

FindingSubject subjectOf(const Change& change)
{
    const std::string& type = change.object.type;
    return isOfConsole(change)                     ? FindingSubject::Console
           : type == ObjectType::ManagedSystem     ? FindingSubject::System
           : type == ObjectType::VirtualIOServer   ? FindingSubject::IOServer
           : type == ObjectType::Group             ? FindingSubject::Group
           : type == ObjectType::ServiceableEvent  ? FindingSubject::Event
           : type == ObjectType::ManagementConsole ? FindingSubject::Console
                                                   : FindingSubject::Partition;
}

/// What a person chose, as changes tell it: they outlive the records of their consoles.
struct Chosen {
    std::set<FindingSubject> kinds;
    std::optional<std::set<std::string>> addresses; ///< none for all

    bool shows(const Change& change) const
    {
        return (kinds.empty() || kinds.contains(subjectOf(change))) &&
               (!addresses || addresses->contains(change.address));
    }
};

std::shared_ptr<const ChangeList> leftBy(const Chosen& chosen, std::shared_ptr<const ChangeList> list)
{
    if (chosen.kinds.empty() && !chosen.addresses) {
        return list;
    }
    auto left = std::make_shared<ChangeList>(*list);
    std::erase_if(left->changes, [&](const Change& change) { return !chosen.shows(change); });
    return left;
}

Chosen chosenBy(const FindingFilter& filter)
{
    Chosen chosen{.kinds = filter.kinds, .addresses = {}};
    if (!filter.consoles.empty()) {
        chosen.addresses.emplace();
        for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
            if (filter.consoles.contains(corvel.get())) {
                chosen.addresses->insert(corvel->address().value_or(""));
            }
        }
    }
    return chosen;
}

} // namespace

ChangesViewController::ChangesViewController()
    : m_tableView(*this, TableKind::Main), m_today(localDayOf(AgeClock::now()))
{
    m_tableView.setRowHeight(rowHeight);
    m_tableView.setSeparatorInset(10, 15);
    m_bars.setHidden(true);
}

void ChangesViewController::viewDidLoad()
{
    setTitle(tr("Changes"));
    connect(&m_bars, &DayBarsOutlet::dayChosen, this, &ChangesViewController::goToDay);
}

void ChangesViewController::viewDidAppear()
{
    NotificationCenter& center = NotificationCenter::defaultCenter();
    m_observations.push_back(center.addObserver("HistoryDidChange", [this] { update(); }));
    // What rows lead to comes and goes with consoles and their feeds.
    m_observations.push_back(center.addObserver("AttentionDidChange", [this] { catchUp(); }));
    connect(&AgeClock::shared(), &AgeClock::ticked, this, &ChangesViewController::tick);
    update();
}

void ChangesViewController::viewDidDisappear()
{
    m_observations.clear();
    AgeClock::shared().disconnect(this);
}

void ChangesViewController::filterDidChange()
{
    if (isInWindow()) {
        update();
    }
}

void ChangesViewController::update()
{
    const int turn = ++m_turn;
    m_next.reset();
    const auto screen = self<ChangesViewController>();
    History::shared().changes([screen, turn](const std::shared_ptr<const ChangeList>& list) {
        if (screen->m_turn != turn) {
            return;
        }
        DispatchQueue::globalBackground().async([screen, turn, list, chosen = chosenBy(screen->filter())] {
            Shown shown{.list = leftBy(chosen, list)};
            shown.notShown = list->changes.size() - shown.list->changes.size();
            shown.days = daysOf(shown.list->changes, {});
            MainQueue::shared().async([screen, turn, shown = std::move(shown)]() mutable {
                if (screen->m_turn == turn) {
                    screen->m_next = std::move(shown);
                    screen->catchUp();
                }
            });
        });
    });
}

void ChangesViewController::catchUp()
{
    // One function for both, since the table keeps only the last one that waits.
    m_tableView.whenUntouched([this] {
        const bool isOld = m_targets.follow();
        if (m_next) {
            adopt(*std::exchange(m_next, {}));
        } else if (isOld) {
            m_tableView.reloadData();
        }
    });
}

void ChangesViewController::adopt(Shown shown)
{
    m_shown = std::move(shown);
    m_filterText =
        filter().isSet() ? FindingText::filtered(filter(), Attention::shared().picture()->consoles) : QString();
    m_emptyText.clear();
    if (m_shown.days.empty()) {
        m_emptyText = m_shown.notShown > 0    ? tr("Nothing left to show")
                      : m_shown.list->mayShow ? tr("Nothing changed in 30 days.")
                                              : tr("Changes show after the second reading.");
        m_emptyText = (QStringList(m_emptyText) + notes()).join(u'\n');
    }
    showCounts();
    m_tableView.reloadRows();
    Q_EMIT shownChanged();
}

QStringList ChangesViewController::notes() const
{
    QStringList notes;
    if (m_shown.notShown > 0) {
        notes << tr("%Ln more changes are not shown.", nullptr, static_cast<int>(m_shown.notShown));
    }
    if (m_shown.list->leftOut) {
        notes << tr("Older changes were left out");
    }
    if (History::shared().wasSetAside()) {
        notes << tr("What changed before could not be read. The damaged file was set aside.");
    }
    return notes;
}

void ChangesViewController::showCounts()
{
    m_today = localDayOf(AgeClock::now());
    m_bars.showChanges(countsOf(m_shown.days, m_today, barDays), m_today);
    const bool wasHidden = m_bars.isHidden();
    m_bars.setHidden(m_shown.days.empty());
    if (wasHidden && !m_bars.isHidden()) {
        m_bars.grow();
    }
}

void ChangesViewController::tick()
{
    // At midnight, today becomes yesterday.
    if (m_shown.list && localDayOf(AgeClock::now()) != m_today) {
        showCounts();
        m_tableView.reloadRows();
    }
}

void ChangesViewController::goToDay(int bar)
{
    const std::chrono::local_days day = m_today - std::chrono::days(barDays - 1 - bar);
    int index = 0;
    for (const ChangeDay& each : m_shown.days) {
        if (each.date == day) {
            Q_EMIT scrollRequested(index);
            return;
        }
        index += 1 + static_cast<int>(each.rows.size());
    }
}

const ChangeRow& ChangesViewController::rowAt(IndexPath indexPath) const
{
    return m_shown.days.at(static_cast<std::size_t>(indexPath.section))
        .rows.at(static_cast<std::size_t>(indexPath.row));
}

Table ChangesViewController::shownTable() const
{
    std::vector<std::uint32_t> rows;
    for (const ChangeDay& day : m_shown.days) {
        for (const ChangeRow& row : day.rows) {
            rows.insert(rows.end(), row.changes.begin(), row.changes.end());
        }
    }
    return m_shown.list != nullptr ? tableOfChanges(m_shown.list->changes, rows) : Table();
}

int ChangesViewController::numberOfSections(TableKind /*tableView*/) const
{
    return static_cast<int>(m_shown.days.size());
}

int ChangesViewController::numberOfRowsInSection(TableKind /*tableView*/, int section) const
{
    return static_cast<int>(m_shown.days.at(static_cast<std::size_t>(section)).rows.size());
}

std::optional<QString> ChangesViewController::titleForHeaderInSection(TableKind /*tableView*/, int section) const
{
    return ChangeText::dayTitle(m_shown.days.at(static_cast<std::size_t>(section)).date, m_today);
}

QString ChangesViewController::detailForHeaderInSection(TableKind tableView, int section) const
{
    return QLocale().toString(numberOfRowsInSection(tableView, section));
}

QString ChangesViewController::footerForSection(TableKind tableView, int section) const
{
    return section == numberOfSections(tableView) - 1 ? notes().join(u'\n') : QString();
}

std::size_t ChangesViewController::keyForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath) const
{
    if (indexPath.row < 0) {
        return rowKey(m_shown.days.at(static_cast<std::size_t>(indexPath.section)).date.time_since_epoch().count());
    }
    const ChangeRow& row = rowAt(indexPath);
    const Change& first = m_shown.list->changes[row.changes.front()];
    return rowKey(row.isFolded(), first.seen.time_since_epoch().count(), first.address, first.kind, first.object.type,
                  first.object.identifier, first.name);
}

QVariant ChangesViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const ChangeRow& row = rowAt(indexPath);
    const bool leadsOn = row.isFolded() || m_targets.leadsOn(m_shown.list->changes[row.changes.front()]);
    return QVariant::fromValue(ChangeText::cellOf(m_shown.list->changes, row, leadsOn));
}

void ChangesViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const ChangeRow& row = rowAt(indexPath);
    if (row.isFolded()) {
        if (NavigationController* const stack = host().navigationController()) {
            stack->open(host(), makeController<FoldedChangesViewController>(m_shown.list, row));
        }
    } else {
        m_targets.open(m_shown.list->changes[row.changes.front()], host());
    }
    m_tableView.deselectRow(indexPath);
}

} // namespace lodestar
