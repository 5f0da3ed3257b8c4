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

/// Colours, font and text size with which a chart is drawn; they come from the chart's surroundings.
struct ChartStyle {
    QColor cardColor = Qt::white;       ///< Colour of the card behind the chart; the chart does not paint it.
    QColor textColor{0x54, 0x5E, 0x6B}; ///< Colour of legend and description.
    QFont textFont;                     ///< Face of legend and description; their sizes are the chart's own settings.
    double textScale = 1;               ///< 1 at 100 % text.
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QColor gridColor{0xC4, 0xCC, 0xD5};
    QColor axisColor{0xA9, 0xB3, 0xBF};
    /// Replace the colours of a plot's first data sets, by position; empty replaces none.
    QList<QColor> seriesColors = {};
};

/// Size, style and phase of one drawing of a chart.
struct ChartFrame {
    QSizeF size;
    ChartStyle style;
    ChartPhases phases;
};

/// Writes a chart's description into the lower end corner of a box; draws nothing for an empty text.
void drawDescription(QPainter& painter, const QString& text, const QRectF& box, const ChartStyle& style);

/// Draws one kind of chart with a painter in device-independent pixels whose origin is the chart's top left. A renderer
/// knows nothing of items, windows or time: the same call gives the same picture on every backend.
class ChartRenderer
{
public:
    ChartRenderer() = default;
    ChartRenderer(const ChartRenderer&) = delete;
    ChartRenderer& operator=(const ChartRenderer&) = delete;
    virtual ~ChartRenderer() = default;

    virtual void draw(QPainter& painter, const ChartFrame& frame) const = 0;
    /// The height in points that a chart of this width wants.
    virtual double preferredHeight(double width, const ChartStyle& style) const = 0;
};

} // namespace lodestar
