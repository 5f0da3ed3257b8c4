// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QList>
#include <QString>

namespace lodestar
{

/// A line across the plot at a value of a y axis, or at an index of the x axis.
struct LimitLine {
    double limit = 0;
    QString label; ///< Beside the line's end; empty for none.
    QColor lineColor{0xE3, 0x22, 0x26};
    double lineWidth = 1;
    QList<double> lineDashLengths; ///< On and off in points, alternating; empty for a solid line.

    bool operator==(const LimitLine&) const = default;
};

/// Where the labels of the x axis stand. Screens name a position by its number.
enum class XAxisLabelPosition : int { Top, Bottom, BothSided, TopInside, BottomInside };
static_assert(static_cast<int>(XAxisLabelPosition::Bottom) == 1);

/// What the axes of both directions have.
struct ChartAxis {
    bool enabled = true;
    bool drawGridLinesEnabled = true;
    QList<double> gridLineDashLengths; ///< On and off in points, alternating; empty for solid lines.
    bool drawLimitLinesBehindDataEnabled = false;
    QList<LimitLine> limitLines;

    void addLimitLine(const LimitLine& line) { limitLines << line; }
    void removeAllLimitLines() { limitLines.clear(); }

    bool operator==(const ChartAxis&) const = default;
};

/// The axis of the x labels. Label i stands at x index i; of labels that would come too close to each other only every
/// second, fourth, fifth, tenth … is shown.
struct XAxis : ChartAxis {
    XAxisLabelPosition labelPosition = XAxisLabelPosition::Bottom;
    double spaceBetweenLabels = 1; ///< The least gap between two labels, in steps of 20 points at 100 % text.

    bool operator==(const XAxis&) const = default;
};

/// The axis of the values. All data are measured by the left axis; the right one repeats it and only adds its own grid
/// and limit lines.
struct YAxis : ChartAxis {
    bool startAtZeroEnabled = true; ///< 0 is part of the axis, whatever the data.

    bool operator==(const YAxis&) const = default;
};

} // namespace lodestar
