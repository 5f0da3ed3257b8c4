// SPDX-License-Identifier: Apache-2.0
#include "Views/Dashboard/DashboardMarks.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Watch.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/CellText.h"

#include <algorithm>

namespace lodestar
{
namespace
{

using std::chrono::minutes;

bool lacks(const Reading& reading, std::string_view type)
{
    return reading.outcome != Reading::Outcome::Offline && reading.outcome != Reading::Outcome::NotTried &&
           std::ranges::count(reading.missingFeeds(), type) > 0;
}

ReadingMark missingMark(std::string_view type)
{
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    const auto count = std::ranges::count_if(
        corvels, [type](const CorvelRef& corvel) { return lacks(*Readings::shared().of(*corvel), type); });
    if (count == 0) {
        return {};
    }
    //: %1 of %2 consoles
    const QString text = DashboardMarks::tr("missing from %1 of %2").arg(count).arg(corvels.size());
    return {.text = text, .state = Role::State::Incomplete, .spoken = text};
}

ReadingMark answeredMark(const FleetReading& fleet)
{
    if (fleet.consoles == 0 || fleet.notTried == fleet.consoles) {
        return {};
    }
    //: %1 of %2 consoles
    const QString text = DashboardMarks::tr("%1 of %2 answered in full").arg(fleet.answeredInFull).arg(fleet.consoles);
    const bool all = fleet.answeredInFull == fleet.consoles;
    return {.text = text, .state = all ? Role::State::None : Role::State::Incomplete, .spoken = text};
}

QString readText(const FleetReading& fleet, WallTime now)
{
    if (!fleet.from || !fleet.until) {
        return {};
    }
    const QString from = AgeText::moment(*fleet.from, now);
    const QString until = AgeText::moment(*fleet.until, now);
    //: %1 and %2 as in "09:41" or "yesterday 21:40"
    return from == until ? DashboardMarks::tr("Read %1.").arg(from)
                         : DashboardMarks::tr("Read %1 to %2.").arg(from, until);
}

QString nextText(WallTime now)
{
    const auto next = Watch::shared().nextRefresh();
    if (!next) {
        return {};
    }
    const auto left = std::max(std::chrono::ceil<minutes>(*next - now), minutes(1));
    return DashboardMarks::tr("Next in %Ln min.", nullptr, static_cast<int>(left.count()));
}

} // namespace

void DashboardMarks::take()
{
    m_fleet = Readings::shared().ofFleet();
    m_answered = answeredMark(m_fleet);
    m_systems = missingMark(ObjectType::ManagedSystem);
    m_partitions = missingMark(ObjectType::LogicalPartition);
    followClock();
    Q_EMIT changed();
}

void DashboardMarks::begin()
{
    m_watch.begin([this] { followClock(); });
}

void DashboardMarks::followClock()
{
    const WallTime now = AgeClock::now();
    QStringList sentences = {readText(m_fleet, now), nextText(now)};
    sentences.removeAll(QString());
    const QString foot = sentences.join(QLatin1Char(' '));
    const bool old = m_fleet.from && AgeText::isOld(*m_fleet.from, now);
    if (foot != m_foot || old != m_old) {
        m_foot = foot;
        m_old = old;
        Q_EMIT changed();
    }
}

} // namespace lodestar
