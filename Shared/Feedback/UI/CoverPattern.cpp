// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/CoverPattern.h"

#include <QPainter>
#include <QPainterPath>

namespace lodestar
{

void paintCover(QPainter& painter, const QRectF& rect, double unit)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x54, 0x5E, 0x6B));
    // Paints a full rectangle beneath the rounded bar: otherwise the corners would show what is covered.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawRect(rect);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setClipRect(rect, Qt::IntersectClip);
    painter.setPen(QPen(QColor(0x76, 0x80, 0x8D), 2 * unit));
    const double step = 7 * unit;
    for (double x = rect.left() - rect.height(); x < rect.right() + step; x += step) {
        painter.drawLine(QPointF(x, rect.bottom()), QPointF(x + rect.height(), rect.top()));
    }
    painter.restore();
}

} // namespace lodestar
