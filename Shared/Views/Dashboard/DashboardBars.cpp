// SPDX-License-Identifier: Apache-2.0
#include "Views/Dashboard/DashboardBars.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Readings.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/CellText.h"

#include <QLocale>
#include <QPointer>

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr std::size_t eventDays = 14;
constexpr std::chrono::hours yesterday{24};

std::vector<ConsoleSnapshot> snapshots()
{
    std::vector<ConsoleSnapshot> consoles;
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        consoles.push_back({corvel, corvel->name().value_or(""), corvel->address().value_or(""),
                            Readings::shared().of(*corvel), corvel->restData(), nullptr});
    }
    return consoles;
}

/// Changes of consoles that are registered still: the others' partitions are not counted any more.
std::vector<Change> changesOfRegistered(const ChangeList& list)
{
    std::set<std::string> addresses;
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        addresses.insert(corvel->address().value_or(""));
    }
    std::vector<Change> changes;
    std::ranges::copy_if(list.changes, std::back_inserter(changes),
                         [&](const Change& change) { return addresses.contains(change.address); });
    return changes;
}

QString signedNumber(int difference)
{
    constexpr char16_t minus = u'\u2212';
    const QString number = QLocale().toString(std::abs(difference));
    return difference == 0 ? QString() : (difference > 0 ? u'+' : QChar(minus)) + number;
}

} // namespace

QString StateBar::accessibleText() const
{
    return spoken({state, count, change.isEmpty() ? QString() : DashboardBars::tr("%1 since yesterday").arg(change)});
}

void DashboardBars::setShown(bool shown)
{
    if (m_shown != shown) {
        m_shown = shown;
        Q_EMIT shownChanged();
    }
}

void DashboardBars::show(const StateCounts& partitions, const QList<QColor>& colors)
{
    ++m_turn;
    std::vector<std::pair<StateCounts::Entry, QColor>> bars;
    for (const StateCounts::Entry& entry : partitions.entries()) {
        bars.emplace_back(entry, colors.at(static_cast<qsizetype>(bars.size()) % colors.size()));
    }
    std::ranges::stable_sort(bars, [](const auto& a, const auto& b) { return a.first.second > b.first.second; });
    m_states.clear();
    for (const auto& [entry, color] : bars) {
        m_states << StateBar{QString::fromStdString(entry.first), color,
                             static_cast<double>(entry.second) / bars.front().first.second,
                             QLocale().toString(entry.second), QString()};
    }
    Q_EMIT statesChanged();
    showEvents();
    compareWithYesterday();
}

void DashboardBars::showEvents()
{
    DispatchQueue::globalBackground().async(
        [bars = QPointer(this), turn = m_turn, consoles = snapshots(), now = AgeClock::now()] {
            MainQueue::shared().async([bars, turn, counts = eventsADay(eventsOf(consoles), now, eventDays), now] {
                if (bars && bars->m_turn == turn) {
                    bars->m_events.showEvents(counts, localDayOf(now));
                    bars->m_events.grow();
                }
            });
        });
}

void DashboardBars::compareWithYesterday()
{
    History::shared().changes([bars = QPointer(this), turn = m_turn](const std::shared_ptr<const ChangeList>& list) {
        if (!bars || bars->m_turn != turn) {
            return;
        }
        const std::vector<Change> changes = changesOfRegistered(*list);
        const WallTime since = AgeClock::now() - yesterday;
        for (StateBar& bar : bars->m_states) {
            bar.change =
                signedNumber(differenceSince(changes, ObjectType::LogicalPartition, bar.state.toStdString(), since));
        }
        Q_EMIT bars->statesChanged();
    });
}

} // namespace lodestar
