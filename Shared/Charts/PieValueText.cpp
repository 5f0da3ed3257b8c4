// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieValueText.h"

#include "Charts/PieChartRenderer.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lodestar
{
namespace
{

constexpr double outlineWidth = 1.75;
constexpr double outlineContrast = 3;
constexpr double clearance = 1; // Between a value and the edges of its slice.
constexpr double degree = std::numbers::pi / 180;

double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Whether a box around the slice's own centre keeps within its sides and radii.
bool fits(const QRectF& box, const PieSlice& slice, double innerRadius, double outerRadius)
{
    const QPointF nearest(std::clamp(0.0, box.left(), box.right()), std::clamp(0.0, box.top(), box.bottom()));
    if (std::hypot(nearest.x(), nearest.y()) < innerRadius) {
        return false;
    }
    const double start = slice.start * degree;
    const double end = (slice.start + slice.sweep) * degree;
    return std::ranges::all_of(
        std::initializer_list<QPointF>{box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()},
        [&](const QPointF& corner) {
            if (std::hypot(corner.x(), corner.y()) > outerRadius) {
                return false;
            }
            if (slice.sweep >= 360) {
                return true;
            }
            // Distances to the two sides, positive on the slice's side of them.
            const bool afterStart = corner.x() * std::cos(start) + corner.y() * std::sin(start) >= slice.gap;
            const bool beforeEnd = -corner.x() * std::cos(end) - corner.y() * std::sin(end) >= slice.gap;
            return slice.sweep <= 180 ? afterStart && beforeEnd : afterStart || beforeEnd;
        });
}

} // namespace

double contrastRatio(const QColor& first, const QColor& second)
{
    const double one = luminance(first) + 0.05;
    const double two = luminance(second) + 0.05;
    return std::max(one, two) / std::min(one, two);
}

PieValueText::PieValueText(const QFont& font, const QColor& color) : m_font(font), m_metrics(font), m_color(color) {}

QSizeF PieValueText::sizeOf(const QStringList& lines) const
{
    double width = 0;
    for (const QString& line : lines) {
        width = std::max(width, m_metrics.horizontalAdvance(line));
    }
    return {width, m_metrics.capHeight() + static_cast<double>(lines.size() - 1) * m_metrics.lineSpacing()};
}

std::optional<QPointF> PieValueText::position(const QStringList& lines, const PieSlice& slice, double innerRadius,
                                              double outerRadius) const
{
    const QSizeF size = sizeOf(lines) + QSizeF(2 * clearance, 2 * clearance);
    const double middle = (slice.start + slice.sweep / 2) * degree;
    const double half = (innerRadius + outerRadius) / 2;
    constexpr int steps = 6;
    for (int step = 0; step < steps; ++step) {
        const double radius = half + (outerRadius - half) * step / steps;
        const QPointF offset = radius * QPointF(std::sin(middle), -std::cos(middle));
        const QRectF box(offset.x() - size.width() / 2, offset.y() - size.height() / 2, size.width(), size.height());
        if (fits(box, slice, innerRadius, outerRadius)) {
            return slice.center + offset;
        }
    }
    return std::nullopt;
}

void PieValueText::draw(QPainter& painter, const QStringList& lines, const PieSlice& slice, double innerRadius,
                        double outerRadius, const QColor& sliceColor) const
{
    if (lines.isEmpty()) {
        return;
    }
    const std::optional<QPointF> middle = position(lines, slice, innerRadius, outerRadius);
    if (!middle) {
        return;
    }
    QPainterPath path;
    double baseline = middle->y() - sizeOf(lines).height() / 2 + m_metrics.capHeight();
    for (const QString& line : lines) {
        path.addText(middle->x() - m_metrics.horizontalAdvance(line) / 2, baseline, m_font, line);
        baseline += m_metrics.lineSpacing();
    }
    if (contrastRatio(m_color, sliceColor) < outlineContrast) {
        QColor outline(0x1A, 0x20, 0x27);
        outline.setAlphaF(0.55F);
        painter.strokePath(path, QPen(outline, outlineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.fillPath(path, m_color);
}

} // namespace lodestar
