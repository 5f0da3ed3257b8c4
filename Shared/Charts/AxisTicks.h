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
    int exponent = 0; ///< Exponent of ten.

    double size() const;
    /// The text of a multiple of the step. All ticks have the same number of digits after the point: the fewest that
    /// tell neighbours apart. Very large and very small numbers have an exponent.
    QString text(double value) const;

    bool operator==(const TickStep&) const = default;
};

/// The smallest step that fits at most `most` times into a length above 0.
TickStep tickStep(double length, double most);

/// The multiples of a step within an interval, in rising order; about a hundred at most, even when more would fit.
QList<double> ticksWithin(const PlotInterval& interval, const TickStep& step);

/// The whole value axis for the given values, which may be empty. The axis begins and ends at half steps, leaves some
/// room beyond the values unless that would cross 0, is always finite and never has a length of 0.
PlotInterval valueAxis(PlotInterval values, bool withZero, double most);

/// Which labels of an index axis are shown when neighbours must be at least so many indices apart: every first, second,
/// fourth, fifth, tenth, twentieth …
int labelStride(double leastIndices);

} // namespace lodestar
