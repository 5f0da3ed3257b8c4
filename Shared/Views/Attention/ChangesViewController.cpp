// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/ChangesViewController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"
#include "Views/Attention/ChangeText.h"
#include "Views/Attention/FoldedChangesViewController.h"
#include "Views/Common/AgeClock.h"

#include <algorithm>
#include <set>

namespace lodestar
{
namespace
{

constexpr double rowHeight = 60;

/// The addresses of the chosen consoles; empty for all.
std::set<std::string> addressesOf(const FindingFilter& filter)
{
    std::set<std::string> addresses;
    if (!filter.consoles.empty()) {
        for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
            if (filter.consoles.contains(corvel.get())) {
                addresses.insert(corvel->address().value_or(""));
            }
        }
    }
    return addresses;
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
    m_observations.push_back(center.addObserver("AttentionDidChange", [this] {
        m_targets.forget();
        m_tableView.reloadData();
    }));
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
    const auto screen = self<ChangesViewController>();
    History::shared().changes([screen, turn](std::shared_ptr<const ChangeList> list) {
        if (screen->m_turn != turn) {
            return;
        }
        DispatchQueue::globalBackground().async(
            [screen, turn, list = std::move(list), addresses = addressesOf(screen->filter())]() mutable {
                std::vector<ChangeDay> days = daysOf(list->changes, addresses);
                MainQueue::shared().async([screen, turn, list = std::move(list), days = std::move(days)]() mutable {
                    if (screen->m_turn == turn) {
                        screen->adopt(std::move(list), std::move(days));
                    }
                });
            });
    });
}

void ChangesViewController::adopt(std::shared_ptr<const ChangeList> list, std::vector<ChangeDay> days)
{
    m_list = std::move(list);
    m_days = std::move(days);
    m_targets.forget();
    const QString text = !m_days.empty()            ? QString()
                         : !m_list->changes.empty() ? tr("Nothing left to show")
                         : m_list->mayShow          ? tr("Nothing changed in 30 days.")
                                                    : tr("Changes show after the second reading.");
    if (m_emptyText != text) {
        m_emptyText = text;
        Q_EMIT emptyTextChanged();
    }
    showCounts();
    m_tableView.reloadData();
}

void ChangesViewController::showCounts()
{
    m_today = localDayOf(AgeClock::now());
    m_bars.showChanges(countsOf(m_days, m_today, barDays), m_today);
    const bool wasHidden = m_bars.isHidden();
    m_bars.setHidden(m_days.empty());
    if (wasHidden && !m_bars.isHidden()) {
        m_bars.grow();
    }
}

void ChangesViewController::tick()
{
    // At midnight, today becomes yesterday.
    if (m_list && localDayOf(AgeClock::now()) != m_today) {
        showCounts();
        m_tableView.reloadData();
    }
}

void ChangesViewController::goToDay(int bar)
{
    const std::chrono::local_days day = m_today - std::chrono::days(barDays - 1 - bar);
    int index = 0;
    for (const ChangeDay& each : m_days) {
        if (each.date == day) {
            Q_EMIT scrollRequested(index);
            return;
        }
        index += 1 + static_cast<int>(each.rows.size());
    }
}

const ChangeRow& ChangesViewController::rowAt(IndexPath indexPath) const
{
    return m_days.at(static_cast<std::size_t>(indexPath.section)).rows.at(static_cast<std::size_t>(indexPath.row));
}

int ChangesViewController::numberOfSections(TableKind /*tableView*/) const
{
    return static_cast<int>(m_days.size());
}

int ChangesViewController::numberOfRowsInSection(TableKind /*tableView*/, int section) const
{
    return static_cast<int>(m_days.at(static_cast<std::size_t>(section)).rows.size());
}

std::optional<QString> ChangesViewController::titleForHeaderInSection(TableKind /*tableView*/, int section) const
{
    return ChangeText::dayTitle(m_days.at(static_cast<std::size_t>(section)).date, m_today);
}

QString ChangesViewController::detailForHeaderInSection(TableKind tableView, int section) const
{
    return QLocale().toString(numberOfRowsInSection(tableView, section));
}

QString ChangesViewController::footerForSection(TableKind tableView, int section) const
{
    const bool cut = m_list && m_list->leftOut && section == numberOfSections(tableView) - 1;
    return cut ? tr("Older changes were left out") : QString();
}

QVariant ChangesViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const ChangeRow& row = rowAt(indexPath);
    const bool leadsOn = row.isFolded() || m_targets.leadsOn(m_list->changes[row.changes.front()]);
    return QVariant::fromValue(ChangeText::cellOf(m_list->changes, row, leadsOn));
}

void ChangesViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const ChangeRow& row = rowAt(indexPath);
    if (row.isFolded()) {
        if (NavigationController* const stack = host().navigationController()) {
            stack->pushViewController(makeController<FoldedChangesViewController>(m_list, row), Animated::Yes);
        }
    } else {
        m_targets.open(m_list->changes[row.changes.front()], host());
    }
    m_tableView.deselectRow(indexPath);
}

} // namespace lodestar
