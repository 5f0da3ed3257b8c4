// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QtGlobal>

namespace lodestar
{

/// A tick of an axis of time.
struct TimeTick {
    /// What a label at this tick has to tell: a time of day with or without seconds, a day, a month or a year.
    enum class Unit { Second, Minute, Day, Month, Year };

    qint64 time = 0; ///< Seconds since 1970, UTC.
    Unit unit = Unit::Minute;

    bool operator==(const TimeTick&) const = default;
};

/// The distance between ticks: a part of a day that divides it, or whole days, months or years.
struct TimeStep {
    TimeTick::Unit unit = TimeTick::Unit::Minute;
    int count = 1; ///< Seconds for parts of a day; otherwise days, months or years.

    /// A month counts 30 days, a year 365.
    qint64 seconds() const;

    bool operator==(const TimeStep&) const = default;
};

/// The smallest step that is at least so long; a hundred years at most.
TimeStep timeStep(double leastSeconds);

/// The local times within an interval that are multiples of the step, in rising order; a few hundred at most. Steps of
/// parts of a day count from midnight and weeks from Monday. Where clocks are put forward, a time that does not exist
/// has no tick; where they are put back, a time that comes twice has two, but for steps above an hour only the first.
QList<TimeTick> timeTicks(double from, double to, const TimeStep& step);

} // namespace lodestar
