// SPDX-License-Identifier: Apache-2.0
#include "Charts/LineMask.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

QRectF inPixels(const QRectF& rect, double pixelRatio)
{
    return {rect.topLeft() * pixelRatio, rect.size() * pixelRatio};
}

} // namespace

LineMask::LineMask(std::span<const QRectF> columns, const QColor& color, double pixelRatio)
    : m_color(color), m_pixelRatio(pixelRatio)
{
    QRectF bounds;
    for (const QRectF& column : columns) {
        bounds |= inPixels(column, pixelRatio);
    }
    const QRect area = bounds.toAlignedRect().adjusted(-1, 0, 1, 0);
    if (columns.empty() || area.isEmpty()) {
        return;
    }
    m_image = QImage(area.size(), QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    m_position = area.topLeft();
    for (const QRectF& column : columns) {
        fill(inPixels(column, pixelRatio).translated(-area.topLeft()));
    }
}

void LineMask::fill(const QRectF& pixels)
{
    const int left = std::clamp(qRound(pixels.left()), 0, m_image.width());
    const int right = std::clamp(qRound(pixels.right()), left, m_image.width());
    const int first = std::max(static_cast<int>(std::floor(pixels.top())), 0);
    const int last = std::min(static_cast<int>(std::ceil(pixels.bottom())), m_image.height());
    for (int y = first; y < last; ++y) {
        fillRow(y, left, right, std::min(y + 1.0, pixels.bottom()) - std::max<double>(y, pixels.top()));
    }
}

void LineMask::fillRow(int y, int left, int right, double coverage)
{
    const auto alpha = static_cast<int>(std::lround(m_color.alpha() * std::clamp(coverage, 0.0, 1.0)));
    const QRgb color = qPremultiply(qRgba(m_color.red(), m_color.green(), m_color.blue(), alpha));
    auto* row = reinterpret_cast<QRgb*>(m_image.scanLine(y));
    for (int x = left; x < right; ++x) {
        if (qAlpha(row[x]) < alpha) {
            row[x] = color;
        }
    }
}

void LineMask::draw(QPainter& painter) const
{
    if (m_image.isNull()) {
        return;
    }
    // In device pixels the picture is copied as it is; in points it would be scaled, which takes far longer.
    painter.save();
    painter.scale(1 / m_pixelRatio, 1 / m_pixelRatio);
    painter.drawImage(m_position, m_image);
    painter.restore();
}

} // namespace lodestar
