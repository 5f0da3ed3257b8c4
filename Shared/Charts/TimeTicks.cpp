// SPDX-License-Identifier: Apache-2.0
#include "Charts/TimeTicks.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cmath>

namespace lodestar
{
namespace
{

using Unit = TimeTick::Unit;

constexpr qsizetype mostTicks = 400;
constexpr int minute = 60;
constexpr int hour = 60 * minute;
constexpr qint64 day = 24 * qint64{hour};
/// All zones of today differ from UTC by a multiple of this, and change by one.
constexpr qint64 grainOfZones = 15 * qint64{minute};

constexpr std::array<TimeStep, 31> steps = {{
    {Unit::Second, 1},
    {Unit::Second, 2},
    {Unit::Second, 5},
    {Unit::Second, 10},
    {Unit::Second, 15},
    {Unit::Second, 30},
    {Unit::Minute, minute},
    {Unit::Minute, 2 * minute},
    {Unit::Minute, 5 * minute},
    {Unit::Minute, 10 * minute},
    {Unit::Minute, 15 * minute},
    {Unit::Minute, 30 * minute},
    {Unit::Minute, hour},
    {Unit::Minute, 2 * hour},
    {Unit::Minute, 3 * hour},
    {Unit::Minute, 6 * hour},
    {Unit::Minute, 12 * hour},
    {Unit::Day, 1},
    {Unit::Day, 2},
    {Unit::Day, 7},
    {Unit::Day, 14},
    {Unit::Month, 1},
    {Unit::Month, 3},
    {Unit::Month, 6},
    {Unit::Year, 1},
    {Unit::Year, 2},
    {Unit::Year, 5},
    {Unit::Year, 10},
    {Unit::Year, 20},
    {Unit::Year, 50},
    {Unit::Year, 100},
}};

qint64 startOf(QDate date)
{
    return date.startOfDay().toSecsSinceEpoch();
}

/// No change of the clocks is longer.
constexpr int longestChange = 2 * hour;

/// Walks in real time, so that a change of the clocks needs no rule of its own.
QList<TimeTick> clockTicks(double from, double to, int step)
{
    const qint64 grain = std::min<qint64>(step, grainOfZones);
    const auto first = static_cast<qint64>(std::ceil(from));
    const qint64 offset = QDateTime::fromSecsSinceEpoch(first).offsetFromUtc();
    qint64 time = first + ((-(first + offset)) % grain + grain) % grain;
    QList<TimeTick> ticks;
    QDateTime last;
    // A long step is skipped but for what a change of the clocks may take from it.
    const qint64 skipped = step > 2 * longestChange ? step - longestChange - grain : 0;
    for (; static_cast<double>(time) <= to && ticks.size() < mostTicks; time += grain) {
        const QDateTime local = QDateTime::fromSecsSinceEpoch(time);
        if ((local.time().msecsSinceStartOfDay() / 1000) % step != 0 ||
            (step > hour && last.isValid() && last.date() == local.date() && last.time() == local.time())) {
            continue;
        }
        const bool isNewDay = !last.isValid() || last.date() != local.date();
        const bool isMidnight = isNewDay && startOf(local.date()) == time;
        ticks << TimeTick{time, isMidnight ? Unit::Day : step < minute ? Unit::Second : Unit::Minute};
        last = local;
        time += skipped;
    }
    return ticks;
}

QDate firstMonthOf(QDate date, int months)
{
    return {date.year(), (date.month() - 1) / months * months + 1, 1};
}

/// The latest multiple of the step that is not after the day.
QDate multipleUpTo(QDate date, const TimeStep& step)
{
    switch (step.unit) {
    case Unit::Month:
        return firstMonthOf(date, step.count);
    case Unit::Year:
        return {date.year() - ((date.year() % step.count) + step.count) % step.count, 1, 1};
    default:
        return date.addDays(-(date.toJulianDay() % step.count)); // Day 0 was a Monday.
    }
}

QDate next(QDate date, const TimeStep& step)
{
    switch (step.unit) {
    case Unit::Month:
        return date.addMonths(step.count);
    case Unit::Year:
        return date.addYears(step.count);
    default:
        return date.addDays(step.count);
    }
}

QList<TimeTick> calendarTicks(double from, double to, const TimeStep& step)
{
    QList<TimeTick> ticks;
    const QDate first = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(std::floor(from))).date();
    for (QDate date = multipleUpTo(first, step); date.isValid() && ticks.size() < mostTicks; date = next(date, step)) {
        const qint64 time = startOf(date);
        if (static_cast<double>(time) > to) {
            break;
        }
        if (static_cast<double>(time) >= from) {
            ticks << TimeTick{time, step.unit == Unit::Month && date.month() == 1 ? Unit::Year : step.unit};
        }
    }
    return ticks;
}

} // namespace

qint64 TimeStep::seconds() const
{
    switch (unit) {
    case Unit::Day:
        return day * count;
    case Unit::Month:
        return day * 30 * count;
    case Unit::Year:
        return day * 365 * count;
    default:
        return count;
    }
}

TimeStep timeStep(double leastSeconds)
{
    const auto* const found = std::ranges::find_if(
        steps, [leastSeconds](const TimeStep& step) { return static_cast<double>(step.seconds()) >= leastSeconds; });
    return found != steps.end() ? *found : steps.back();
}

QList<TimeTick> timeTicks(double from, double to, const TimeStep& step)
{
    if (!std::isfinite(from) || !std::isfinite(to)) {
        return {};
    }
    return step.unit == Unit::Second || step.unit == Unit::Minute ? clockTicks(from, to, step.count)
                                                                  : calendarTicks(from, to, step);
}

} // namespace lodestar
