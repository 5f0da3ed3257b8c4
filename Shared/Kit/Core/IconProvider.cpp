// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/IconProvider.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace lodestar
{

IconProvider::IconProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage IconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(id.section(u'/', 0, 0)));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QColor color(u'#' + id.section(u'/', 1, 1));
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
    QSvgRenderer renderer(drawing);
    const QSize pixels = requestedSize.isValid() && !requestedSize.isEmpty() ? requestedSize : renderer.defaultSize();
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setOpacity(color.isValid() ? color.alphaF() : 1);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    if (size != nullptr) {
        *size = pixels;
    }
    return image;
}

} // namespace lodestar
