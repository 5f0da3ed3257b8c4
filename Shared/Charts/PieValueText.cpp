// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieValueText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lodestar
{
namespace
{

constexpr double leastContrast = 3;    // Between a value and the bare slice behind it.
constexpr double groundContrast = 4.5; // Between a value and the plate behind it.
constexpr double clearance = 1;        // Points between a value and the edges of its slice.
constexpr int smallest = 8; // Least size in pixels of a shrunken value; a face that is smaller already is not shrunk.
const QSizeF groundPadding(3.5, 2.5);
constexpr double degree = std::numbers::pi / 180;

double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Whether a box, relative to the slice's own centre, keeps within the slice's sides and radii.
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
            // The distance to either side must be at least the gap; it is positive on the slice's side.
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

PieValueText::PieValueText(const QFont& font, const QColor& color) : m_font(font), m_color(color) {}

QColor PieValueText::groundOn(const QColor& sliceColor) const
{
    if (contrastRatio(m_color, sliceColor) >= leastContrast) {
        return {};
    }
    // The plate keeps the slice's hue, so that both look like one slice; its lightness moves away from the text's until
    // the text can be read.
    const bool lightText = luminance(m_color) > 0.5;
    QColor ground = sliceColor;
    for (int step = 0; step < 100 && contrastRatio(m_color, ground) < groundContrast; ++step) {
        const float lightness = ground.lightnessF() + (lightText ? -0.01F : 0.01F);
        ground.setHslF(std::max(ground.hslHueF(), 0.0F), ground.hslSaturationF(), std::clamp(lightness, 0.0F, 1.0F));
    }
    return ground;
}

std::optional<PieValueText::Place> PieValueText::place(const QStringList& lines, const PieSlice& slice,
                                                       double innerRadius, double outerRadius,
                                                       const QSizeF& padding) const
{
    const double middle = (slice.start + slice.sweep / 2) * degree;
    const double half = (innerRadius + outerRadius) / 2;
    constexpr int steps = 6;
    QFont font = m_font;
    // The size is the outer loop: a full-size value at the rim is found more easily than a smaller one in the middle.
    for (int pixels = m_font.pixelSize(); pixels >= std::min(smallest, m_font.pixelSize()); --pixels) {
        font.setPixelSize(pixels);
        const QSizeF size = sizeOf(lines, font);
        const QSizeF taken = size + 2 * padding + QSizeF(2 * clearance, 2 * clearance);
        for (int step = 0; step < steps; ++step) {
            const double radius = half + (outerRadius - half) * step / steps;
            const QPointF offset = radius * QPointF(std::sin(middle), -std::cos(middle));
            const QRectF box(offset - QPointF(taken.width() / 2, taken.height() / 2), taken);
            if (fits(box, slice, innerRadius, outerRadius)) {
                return Place{font, slice.center + offset, size};
            }
        }
    }
    return std::nullopt;
}

QSizeF PieValueText::sizeOf(const QStringList& lines, const QFont& font)
{
    const QFontMetricsF metrics(font);
    double width = 0;
    for (const QString& line : lines) {
        width = std::max(width, metrics.horizontalAdvance(line));
    }
    return {width, metrics.capHeight() + static_cast<double>(lines.size() - 1) * metrics.lineSpacing()};
}

void PieValueText::draw(QPainter& painter, const QStringList& lines, const PieSlice& slice, double innerRadius,
                        double outerRadius, const QColor& sliceColor) const
{
    if (lines.isEmpty()) {
        return;
    }
    const QColor ground = groundOn(sliceColor);
    const QSizeF padding = ground.isValid() ? groundPadding : QSizeF(0, 0);
    const std::optional<Place> placed = place(lines, slice, innerRadius, outerRadius, padding);
    if (!placed) {
        return;
    }
    if (ground.isValid()) {
        const QSizeF size = placed->size + 2 * padding;
        const QRectF box(placed->middle - QPointF(size.width() / 2, size.height() / 2), size);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(box, 4, 4);
    }
    painter.setFont(placed->font);
    painter.setPen(m_color);
    const QFontMetricsF metrics(placed->font);
    const QTransform toDevice = painter.deviceTransform();
    const QTransform fromDevice = toDevice.inverted();
    double baseline = placed->middle.y() - placed->size.height() / 2 + metrics.capHeight();
    for (const QString& line : lines) {
        // Text starts on whole device pixels; in between, every stroke would be smeared over two.
        const QPointF start = toDevice.map(QPointF(placed->middle.x() - metrics.horizontalAdvance(line) / 2, baseline));
        painter.drawText(fromDevice.map(QPointF(std::round(start.x()), std::round(start.y()))), line);
        baseline += metrics.lineSpacing();
    }
}

} // namespace lodestar
