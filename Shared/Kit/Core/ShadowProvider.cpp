// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/ShadowProvider.h"

#include <QColor>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace lodestar
{

namespace
{

std::size_t placeOf(int line, int lineStep, int place, int step)
{
    const int index = line * lineStep + place * step;
    return static_cast<std::size_t>(index);
}

/// One pass of a running mean over lines of `length` values, which lie `step` apart. Three passes come close to a bell
/// curve.
void mean(std::vector<float>& values, int lines, int length, int lineStep, int step, int reach)
{
    std::vector<float> line(static_cast<std::size_t>(length));
    for (int number = 0; number < lines; ++number) {
        const auto at = [&](int place) -> float& { return values[placeOf(number, lineStep, place, step)]; };
        for (int place = 0; place < length; ++place) {
            line[static_cast<std::size_t>(place)] = at(place);
        }
        for (int place = 0; place < length; ++place) {
            float sum = 0;
            for (int other = std::max(0, place - reach); other <= std::min(length - 1, place + reach); ++other) {
                sum += line[static_cast<std::size_t>(other)];
            }
            at(place) = sum / static_cast<float>(2 * reach + 1);
        }
    }
}

} // namespace

ShadowProvider::ShadowProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage ShadowProvider::requestImage(const QString& id, QSize* size, const QSize& /*requestedSize*/)
{
    const QStringList parts = id.split(u'/');
    const int radius = std::clamp(parts.value(0).toInt(), 0, 64);
    const int blur = std::clamp(parts.value(1).toInt(), 1, 64);
    const QColor color(u'#' + parts.value(2));
    const int side = 2 * (radius + 2 * blur) + 1;

    QImage box(side, side, QImage::Format_ARGB32_Premultiplied);
    box.fill(Qt::transparent);
    QPainter painter(&box);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(QRectF(box.rect()).adjusted(blur, blur, -blur, -blur), radius, radius);
    painter.end();

    std::vector<float> alpha(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            alpha[placeOf(y, side, x, 1)] = static_cast<float>(qAlpha(box.pixel(x, y)));
        }
    }
    // A blur of n reaches n outwards and inwards; three means of a third each add up to that.
    const int reach = std::max(1, blur / 3);
    for (int pass = 0; pass < 3; ++pass) {
        mean(alpha, side, side, side, 1, reach);
        mean(alpha, side, side, 1, side, reach);
    }
    QImage image(side, side, QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const float strength = alpha[placeOf(y, side, x, 1)] * static_cast<float>(color.alphaF());
            image.setPixel(x, y, qRgba(color.red(), color.green(), color.blue(), qRound(strength)));
        }
    }
    if (size != nullptr) {
        *size = image.size();
    }
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace lodestar
