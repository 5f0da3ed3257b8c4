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

/// Where the legend stands: below or above the chart, and at which end of its line. Screens name a position by its
/// number.
enum class LegendPosition : int {
    BelowChartLeft = 6,
    BelowChartCenter,
    BelowChartRight,
    AboveChartLeft,
    AboveChartCenter,
    AboveChartRight,
};
static_assert(static_cast<int>(LegendPosition::AboveChartLeft) == 9);

/// Shape of the mark before an entry's text.
enum class LegendForm : int { Square, Circle, Line };

/// A legend's settings. Sizes in points at 100 % text.
struct Legend {
    bool enabled = true;
    LegendPosition position = LegendPosition::BelowChartLeft;
    LegendForm form = LegendForm::Square;
    double xEntrySpace = 1; ///< Gap between the entries of a line, in steps of 20 points.
    double yEntrySpace = 1; ///< Gap between lines, in steps of 5 points.
    double yOffset = 0;     ///< Gap to the chart's edge; the text size does not scale it.

    bool operator==(const Legend&) const = default;
};

/// One entry of a legend, before layout.
struct LegendItem {
    QString label;
    QColor color;
};

/// One entry of a legend, after layout.
struct LegendBox {
    /// Empty for the last box of a legend that had to be cut: that box counts the missing entries ("+12").
    QRectF form;
    QPointF baseline;
    QString text;
    QColor color;
};

/// A legend after layout. `bounds` runs from the chart's edge to the inner end of the legend and spans the chart's
/// whole width; it is empty when there is nothing to show.
struct LegendLayout {
    std::vector<LegendBox> boxes;
    QRectF bounds;
};

/// Lays a legend out within a chart of the given size. The legend takes at most 45 % of the chart; names too long for
/// their line are elided in the middle. A right-to-left style mirrors the whole layout.
LegendLayout layoutLegend(const Legend& legend, std::span<const LegendItem> items, QSizeF chart,
                          const ChartStyle& style);

/// The part of the chart that the legend leaves free.
QRectF contentBeside(const Legend& legend, const LegendLayout& layout, QSizeF chart);

void drawLegend(QPainter& painter, const Legend& legend, const LegendLayout& layout, const ChartStyle& style);

} // namespace lodestar
