// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QRectF>

#include <span>

class QPainter;

namespace lodestar
{

/// Draws the columns of a dense line, set pixel by pixel: a painter takes longer for hundreds of narrow rectangles than
/// for everything else in a chart. The rectangles are in points; the chart's origin must lie on a whole device pixel.
/// Upper and lower ends are antialiased, sides lie on pixel edges. Overlapping rectangles do not darken each other.
void drawLineMask(QPainter& painter, std::span<const QRectF> columns, const QColor& color, double pixelRatio);

} // namespace lodestar
