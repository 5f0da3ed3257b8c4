// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRectF>

#include <span>

class QPainter;

namespace lodestar
{

/// The columns of a dense line, set pixel by pixel: a painter takes longer for hundreds of narrow rectangles than for
/// everything else in a chart.
class LineMask
{
public:
    LineMask() = default;
    /// The rectangles are in points; the chart's origin must lie on a whole device pixel. Upper and lower ends are
    /// antialiased, sides lie on pixel edges. Overlapping rectangles do not darken each other.
    LineMask(std::span<const QRectF> columns, const QColor& color, double pixelRatio);

    void draw(QPainter& painter) const;

private:
    QImage m_image;
    QPoint m_position; ///< In device pixels, from the chart's top left.
    double m_pixelRatio = 1;
};

} // namespace lodestar
