// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/TimeTicks.h"

#include <QColor>
#include <QList>
#include <QString>

#include <optional>

namespace lodestar
{

/// A line across the plot at a value of a y axis, or at an index of the x axis.
struct LimitLine {
    double limit = 0;
    QString label; ///< Stands beside the line's end; empty for no label.
    QColor lineColor{0xE3, 0x22, 0x26};
    double lineWidth = 1;
    QList<double> lineDashLengths; ///< Lengths of dashes and gaps in turn, in points; empty for a solid line.

    bool operator==(const LimitLine&) const = default;
};

/// Where the labels of the x axis stand. Screens name a position by its number.
enum class XAxisLabelPosition : int { Top = 0, Bottom = 1 };

/// The settings that both kinds of axis have.
struct ChartAxis {
    bool enabled = true;
    bool drawAxisLineEnabled = true;
    bool drawGridLinesEnabled = true;
    QList<double> gridLineDashLengths; ///< Lengths of dashes and gaps in turn, in points; empty for solid lines.
    bool drawLimitLinesBehindDataEnabled = false;
    QList<LimitLine> limitLines;

    void addLimitLine(const LimitLine& line) { limitLines << line; }
    void removeAllLimitLines() { limitLines.clear(); }

    bool operator==(const ChartAxis&) const = default;
};

/// Makes the x axis one of time: an index counts seconds, and the labels are of local time.
struct TimeScale {
    qint64 origin = 0;                               ///< When index 0 was, in seconds since 1970, UTC.
    int step = 60;                                   ///< Seconds that neighbouring entries are usually apart; above 0.
    QString (*text)(const TimeTick& tick) = nullptr; ///< Writes a tick's label; never null.

    bool operator==(const TimeScale&) const = default;
};

/// The axis of the x labels. Label i stands at x index i. Where labels would come too close to each other, only every
/// second, fourth, fifth, tenth … is shown.
struct XAxis : ChartAxis {
    XAxisLabelPosition labelPosition = XAxisLabelPosition::Bottom;
    double spaceBetweenLabels = 1; ///< The least gap between two labels, in steps of 20 points at 100 % text.
    /// The only indices with a label, in rising order, as long as they find room; empty for as many as fit. These
    /// labels do not reach beyond the plot.
    QList<int> labelledIndices;
    std::optional<TimeScale> time; ///< None for an axis of labels. An axis of time needs no x labels.

    bool operator==(const XAxis&) const = default;
};

/// An axis of values. The left axis measures all data; the right axis repeats it and adds only its own grid and limit
/// lines.
struct YAxis : ChartAxis {
    bool startAtZeroEnabled = true; ///< The axis includes 0, whatever the data are.
    bool drawZeroLineEnabled = false;
    bool drawSignEnabled = true; ///< Labels below 0 have their sign.
    /// The only values with a label and a grid line, whole numbers in rising order; the axis ends at the outermost.
    /// Empty for ticks that suit the data.
    QList<double> labelledValues;

    bool operator==(const YAxis&) const = default;
};

} // namespace lodestar
