// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagedSystems/PCM/ChartPicture.h"

#include "Charts/PlotRenderer.h"
#include "Kit/Core/UIFont+System.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

namespace lodestar
{
namespace
{

constexpr QSizeF pictureSize(1280, 720); // Points.
constexpr double pixelRatio = 2;
constexpr double margin = 32;
constexpr double titleSize = 28;
constexpr double subtitleSize = 15;
constexpr double headHeight = 68;
constexpr double textScale = 1.4; // A picture of this size is mostly seen at half of it.

} // namespace

QByteArray chartPicture(const PlotModel& model, const QString& title, const QString& subtitle)
{
    PlotModel drawn = model;
    drawn.legend = {.position = LegendPosition::AboveChartLeft, .form = LegendForm::Line};
    drawn.highlights.clear();
    QImage image((pictureSize * pixelRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setPen(QColor(0x1A, 0x20, 0x27));
    painter.setFont(UIFont::systemFontOfSize(titleSize));
    const QRectF head(margin, margin, pictureSize.width() - 2 * margin, headHeight);
    painter.drawText(head, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, title);
    painter.setPen(QColor(0x54, 0x5E, 0x6B));
    painter.setFont(UIFont::systemFontOfSize(subtitleSize));
    painter.drawText(head, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine, subtitle);
    painter.translate(head.bottomLeft() + QPointF(0, margin / 2));
    ChartFrame frame{{head.width(), pictureSize.height() - head.bottom() - 1.5 * margin}, {}, {}};
    frame.style.textFont = UIFont::systemFontOfSize(subtitleSize);
    frame.style.textScale = textScale;
    PlotRenderer(drawn).draw(painter, frame);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace lodestar
