// SPDX-License-Identifier: Apache-2.0
#include "Charts/LineMask.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>

namespace lodestar
{
namespace
{

QRectF inPixels(const QRectF& rect, double pixelRatio)
{
    return {rect.topLeft() * pixelRatio, rect.size() * pixelRatio};
}

/// Fills rectangles of an image with shades of one colour.
class Filler
{
public:
    Filler(QImage& image, const QColor& color)
        : m_bits(reinterpret_cast<QRgb*>(image.bits())),
          m_stride(image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))),
          m_width(image.width()),
          m_height(image.height())
    {
        for (std::size_t i = 0; i < m_shades.size(); ++i) {
            const int alpha = qRound(color.alpha() * static_cast<double>(i) / wholeShade);
            m_shades.at(i) = qPremultiply(qRgba(color.red(), color.green(), color.blue(), alpha));
        }
    }

    void fill(const QRectF& pixels)
    {
        const int left = std::clamp(qRound(pixels.left()), 0, m_width);
        const int right = std::clamp(qRound(pixels.right()), left, m_width);
        const double top = std::max(pixels.top(), 0.0);
        const double bottom = std::min<double>(pixels.bottom(), m_height);
        for (int y = static_cast<int>(top); y < bottom; ++y) {
            const double coverage = std::max(std::min(y + 1.0, bottom) - std::max<double>(y, top), 0.0);
            const QRgb shade = m_shades[static_cast<std::size_t>(qRound(coverage * wholeShade))];
            QRgb* const row = m_bits + y * m_stride;
            for (int x = left; x < right; ++x) {
                // A pixel that is covered twice keeps the darker shade.
                if (qAlpha(row[x]) < qAlpha(shade)) {
                    row[x] = shade;
                }
            }
        }
    }

private:
    static constexpr int wholeShade = 255;

    QRgb* m_bits;
    qsizetype m_stride; // Pixels per row.
    int m_width;
    int m_height;
    std::array<QRgb, wholeShade + 1> m_shades{}; // The line's colour, by how much of a pixel is covered.
};

} // namespace

void drawLineMask(QPainter& painter, std::span<const QRectF> columns, const QColor& color, double pixelRatio)
{
    QRectF bounds;
    for (const QRectF& column : columns) {
        bounds |= inPixels(column, pixelRatio);
    }
    const QRect area = bounds.toAlignedRect().adjusted(-1, 0, 1, 0);
    if (columns.empty() || area.isEmpty()) {
        return;
    }
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    Filler filler(image, color);
    for (const QRectF& column : columns) {
        filler.fill(inPixels(column, pixelRatio).translated(-area.topLeft()));
    }
    // Scaled to device pixels, the painter copies the picture; in points it would resample it, which takes far longer.
    painter.save();
    painter.scale(1 / pixelRatio, 1 / pixelRatio);
    painter.drawImage(area.topLeft(), image);
    painter.restore();
}

} // namespace lodestar
