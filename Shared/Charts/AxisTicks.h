// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotSpace.h"

#include <QList>
#include <QString>

namespace lodestar
{

/// The distance between an axis's ticks: 1, 2 or 5 times a power of ten.
struct TickStep {
    int factor = 1;   ///< 1, 2 or 5.
    int exponent = 0; ///< Of ten.

    double size() const;
    /// The text of a multiple of the step with as many digits as tell it from its neighbours, the same number of them
    /// after the point at every tick. Very large and very small numbers have an exponent.
    QString text(double value) const;

    bool operator==(const TickStep&) const = default;
};

/// The smallest step of which at most so many fit into a length above 0.
TickStep tickStep(double length, double most);

/// The multiples of a step within an interval, rising; at most some hundred even when asked for more.
QList<double> ticksWithin(const PlotInterval& interval, const TickStep& step);

/// The whole of a value axis for the values given, which may be empty: begins and ends at half steps, leaves some room
/// beyond the values unless that would cross 0, never has a length of 0 and always is finite.
PlotInterval valueAxis(PlotInterval values, bool withZero, double most);

/// Which labels of an index axis are shown, if they need to stand so many indices apart: every first, second, fourth,
/// fifth, tenth, twentieth …
int labelStride(double leastIndices);

} // namespace lodestar
