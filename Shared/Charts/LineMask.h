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

/// A dense line's columns, set pixel by pixel: hundreds of narrow rectangles take a painter longer than everything else
/// in a chart.
class LineMask
{
public:
    LineMask() = default;
    /// Rectangles in points, whose chart begins at a whole device pixel. Upper and lower ends are antialiased, sides
    /// lie on pixel edges. Overlapping rectangles add nothing to each other.
    LineMask(std::span<const QRectF> columns, const QColor& color, double pixelRatio);

    void draw(QPainter& painter) const;

private:
    QImage m_image;
    QPoint m_position; ///< In device pixels of the chart.
    double m_pixelRatio = 1;
};

} // namespace lodestar
