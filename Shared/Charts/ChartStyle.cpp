// SPDX-License-Identifier: Apache-2.0
#include "Charts/ChartStyle.h"

#include <QPainter>
#include <QRectF>

namespace lodestar
{

void drawDescription(QPainter& painter, const QString& text, const QRectF& box, const ChartStyle& style)
{
    if (text.isEmpty()) {
        return;
    }
    QFont font = style.textFont;
    font.setPixelSize(qMax(1, qRound(11 * style.textScale)));
    painter.setFont(font);
    painter.setPen(style.textColor);
    const auto end = style.direction == Qt::RightToLeft ? Qt::AlignLeft : Qt::AlignRight;
    painter.drawText(box, static_cast<int>(end | Qt::AlignBottom) | Qt::TextSingleLine, text);
}

} // namespace lodestar
