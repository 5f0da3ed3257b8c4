// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartStyle.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <span>
#include <vector>

class QPainter;

namespace lodestar
{

/// Where the legend stands. Screens name a position by its number: the side of the chart (right, left, below, above)
/// times three plus the place along that side.
enum class LegendPosition : int {
    RightOfChartTop,
    RightOfChartCenter,
    RightOfChartBottom,
    LeftOfChartTop,
    LeftOfChartCenter,
    LeftOfChartBottom,
    BelowChartLeft,
    BelowChartCenter,
    BelowChartRight,
    AboveChartLeft,
    AboveChartCenter,
    AboveChartRight,
};
static_assert(static_cast<int>(LegendPosition::AboveChartLeft) == 9);

/// The mark before an entry's text.
enum class LegendForm : int { Square, Circle, Line };

/// A legend's settings. Sizes in points at 100 % text.
struct Legend {
    bool enabled = true;
    LegendPosition position = LegendPosition::BelowChartLeft;
    LegendForm form = LegendForm::Square;
    double formSize = 9;    ///< Side of a square, diameter of a circle; a line is twice as long less 2.
    double xEntrySpace = 1; ///< Between entries of a line, in steps of 20 points.
    double yEntrySpace = 1; ///< Between lines, in steps of 5 points.
    double yOffset = 0;     ///< From the chart's edge, not scaled with the text.

    bool operator==(const Legend&) const = default;
};

/// One entry to lay out.
struct LegendItem {
    QString label;
    QColor color;
};

/// One entry in place.
struct LegendBox {
    QRectF form; ///< Empty for the last box of a legend that had to be cut, which says how many are missing ("+12").
    QPointF baseline;
    QString text;
    QColor color;
};

/// A legend in place. `bounds` spans the chart's whole width (above, below) or height (sides), from the chart's edge
/// to the inner end of the legend, and is empty when there is nothing to show.
struct LegendLayout {
    std::vector<LegendBox> boxes;
    QRectF bounds;
};

/// Lays a legend out within a chart of that size. It takes at most 45 % of the chart; names too long for their line
/// are elided in the middle. Right-to-left mirrors the whole layout, sides included.
LegendLayout layoutLegend(const Legend& legend, std::span<const LegendItem> items, QSizeF chart,
                          const ChartStyle& style);

/// What a legend leaves of the chart.
QRectF contentBeside(const Legend& legend, const LegendLayout& layout, QSizeF chart, const ChartStyle& style);

void drawLegend(QPainter& painter, const Legend& legend, const LegendLayout& layout, const ChartStyle& style);

} // namespace lodestar
