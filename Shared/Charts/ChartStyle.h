// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartEasing.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QSizeF>
#include <QString>

class QPainter;
class QRectF;

namespace lodestar
{

/// The surroundings that a chart is drawn for.
struct ChartStyle {
    QColor cardColor = Qt::white;       ///< What the chart stands on; it is not painted by the chart.
    QColor textColor{0x54, 0x5E, 0x6B}; ///< Legend and description.
    QFont textFont;                     ///< Their face; sizes are the chart's own.
    double textScale = 1;               ///< 1 is 100 % text.
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QColor gridColor{0xC4, 0xCC, 0xD5};
    QColor axisColor{0xA9, 0xB3, 0xBF};
    QList<QColor> seriesColors = {}; ///< Stand in for the colours of a plot's data sets by position, as far as they go.
};

/// One drawing of a chart.
struct ChartFrame {
    QSizeF size;
    ChartStyle style;
    ChartPhases phases;
};

/// Writes a chart's description into the lower end corner of a box, if it has one.
void drawDescription(QPainter& painter, const QString& text, const QRectF& box, const ChartStyle& style);

/// Draws one kind of chart with a painter in device-independent pixels, origin at the chart's top left. Knows nothing
/// of items, windows or time; the same call gives the same picture on every backend.
class ChartRenderer
{
public:
    ChartRenderer() = default;
    ChartRenderer(const ChartRenderer&) = delete;
    ChartRenderer& operator=(const ChartRenderer&) = delete;
    virtual ~ChartRenderer() = default;

    virtual void draw(QPainter& painter, const ChartFrame& frame) const = 0;
    /// The height that a chart of that width wants, in points.
    virtual double preferredHeight(double width, const ChartStyle& style) const = 0;
};

} // namespace lodestar
