// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieChartRenderer.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lodestar
{
namespace
{

constexpr double degree = std::numbers::pi / 180;
constexpr double margin = 12;        // Points around the pie's box, for a highlighted slice and the easing's overshoot.
constexpr double smallestBox = 140;  // Points; a smaller pie cannot be read.
constexpr double tallest = 480;      // The greatest height in points that a chart asks for, at 100 % text.
constexpr double halfGap = 1;        // In points; a gap between slices is two points wide all along.
constexpr double highlightShift = 6; // Points by which a highlighted slice moves outward.
constexpr double firstScale = 0.72;  // Share of the radius at which the grow-in starts.
constexpr double bandOpacity = 0.42;

QPointF direction(double angle)
{
    return {std::sin(angle * degree), -std::cos(angle * degree)};
}

QRectF circle(QPointF center, double radius)
{
    return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
}

double fraction(double value)
{
    return std::isfinite(value) ? std::clamp(value, 0.0, 1.0) : 0.0;
}

double normalized(double angle)
{
    const double turned = std::isfinite(angle) ? std::fmod(angle, 360.0) : 0.0;
    return turned < 0 ? turned + 360 : turned;
}

} // namespace

PieLayout PieChartRenderer::layout(const ChartFrame& frame) const
{
    PieLayout layout;
    layout.legend = layoutLegend(m_model.legend, legendItems(), frame.size, frame.style);
    layout.content = contentBeside(m_model.legend, layout.legend, frame.size);
    const QRectF room = layout.content.adjusted(margin, margin, -margin, -margin);
    const double box = std::min({room.width(), room.height(), m_maximumDiameter});
    layout.center = layout.content.center();
    if (!(box > 2)) {
        return layout;
    }
    const double grown = firstScale + (1 - firstScale) * std::max(frame.phases.y, 0.0);
    layout.radius = (box / 2 - halfGap) * grown;
    if (m_model.drawHole) {
        layout.holeRadius = layout.radius * fraction(m_model.holeRadiusPercent);
        layout.bandRadius =
            std::max(layout.holeRadius, layout.radius * fraction(m_model.transparentCircleRadiusPercent));
    }
    layout.slices = slicesOf(layout, frame.phases);
    return layout;
}

std::vector<PieSlice> PieChartRenderer::slicesOf(const PieLayout& layout, const ChartPhases& phases) const
{
    std::vector<PieSlice> slices;
    const PieChartDataSet& dataSet = m_model.data.dataSet;
    const double total = dataSet.total();
    // The easing's overshoot goes into the size only: a sweep beyond the full turn would cover the first slice.
    const double turn = 360 * fraction(phases.x);
    if (!(total > 0) || turn <= 0) {
        return slices;
    }
    double before = 0;
    for (qsizetype i = 0; i < dataSet.entries.size(); ++i) {
        const double value = PieChartDataSet::chartedValue(dataSet.entries.at(i));
        if (value <= 0) {
            continue;
        }
        PieSlice slice;
        slice.entry = i;
        slice.start = normalized(m_model.rotationAngle) + before / total * turn;
        slice.sweep = value / total * turn;
        // Narrow slices keep at least half of their width, even at the hole.
        const double narrowest = std::max(layout.holeRadius, layout.radius / 4);
        slice.gap = value < total ? std::min(halfGap, slice.sweep * degree * narrowest / 4) : 0;
        slice.center = layout.center;
        if (m_model.isHighlighted(dataSet.entries.at(i)) && value < total) {
            slice.center += highlightShift * direction(slice.start + slice.sweep / 2);
        }
        slices.push_back(slice);
        before += value;
    }
    return slices;
}

QPainterPath PieChartRenderer::slicePath(const PieSlice& slice, double innerRadius, double outerRadius)
{
    QPainterPath path;
    const QPointF center = slice.center;
    const auto painterAngle = [](double angle) { return 90 - angle; };
    if (slice.sweep >= 360) {
        path.addEllipse(circle(center, outerRadius));
        path.addEllipse(circle(center, innerRadius)); // Odd-even filling leaves the hole free.
        return path;
    }
    const double outerInset = std::asin(std::min(1.0, slice.gap / outerRadius)) / degree;
    const double end = slice.start + slice.sweep;
    path.arcMoveTo(circle(center, outerRadius), painterAngle(slice.start + outerInset));
    path.arcTo(circle(center, outerRadius), painterAngle(slice.start + outerInset), -(slice.sweep - 2 * outerInset));
    // Both sides keep their distance from the gap's middle; a slice ends where they meet outside the inner radius.
    const double halfSweep = slice.sweep / 2 * degree;
    const double apex = slice.gap / std::sin(halfSweep);
    const double innerInset = innerRadius > slice.gap ? std::asin(slice.gap / innerRadius) / degree : 90;
    if (innerRadius <= 0 || (slice.sweep < 180 && apex >= innerRadius)) {
        path.lineTo(center + apex * direction(slice.start + slice.sweep / 2));
    } else {
        path.arcTo(circle(center, innerRadius), painterAngle(end - innerInset), slice.sweep - 2 * innerInset);
    }
    path.closeSubpath();
    return path;
}

void PieChartRenderer::draw(QPainter& painter, const ChartFrame& frame) const
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const PieLayout placed = layout(frame);
    drawLegend(painter, m_model.legend, placed.legend, frame.style);
    if (placed.radius > 0) {
        drawSlices(painter, placed, frame.style);
        drawValues(painter, placed, frame);
    }
    drawDescription(painter, m_model.descriptionText,
                    QRectF(QPointF(0, 0), frame.size).adjusted(margin, margin, -margin, -margin), frame.style);
}

void PieChartRenderer::drawSlices(QPainter& painter, const PieLayout& layout, const ChartStyle& style) const
{
    painter.setPen(Qt::NoPen);
    QColor band = style.cardColor;
    band.setAlphaF(static_cast<float>(bandOpacity));
    for (const PieSlice& slice : layout.slices) {
        painter.setBrush(m_model.data.dataSet.colorAt(slice.entry));
        painter.drawPath(slicePath(slice, layout.holeRadius, layout.radius));
        if (layout.bandRadius > layout.holeRadius) {
            painter.setBrush(band);
            painter.drawPath(slicePath(slice, layout.holeRadius, layout.bandRadius));
        }
    }
    if (m_model.drawHole && !m_model.holeTransparent && !layout.slices.empty()) {
        painter.setBrush(style.cardColor);
        painter.drawEllipse(circle(layout.center, layout.holeRadius));
    }
}

void PieChartRenderer::drawValues(QPainter& painter, const PieLayout& layout, const ChartFrame& frame) const
{
    const PieChartData& data = m_model.data;
    QFont font = data.dataSet.valueFont;
    const double size = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF();
    font.setPixelSize(qMax(1, qRound(size * frame.style.textScale)));
    const PieValueText text(font, data.dataSet.valueTextColor);
    // Values appear in the second half of the sweep, when most slices are in place.
    painter.setOpacity(std::clamp(2 * frame.phases.x - 1, 0.0, 1.0));
    for (const PieSlice& slice : layout.slices) {
        const ChartEntry& entry = data.dataSet.entries.at(slice.entry);
        QStringList lines{m_model.valueText(entry)};
        if (m_model.drawSliceText) {
            lines.prepend(data.labelOf(entry));
        }
        lines.removeAll(QString());
        const double inner = std::max(layout.bandRadius, layout.holeRadius);
        text.draw(painter, lines, slice, inner, layout.radius, data.dataSet.colorAt(slice.entry));
    }
    painter.setOpacity(1);
}

double PieChartRenderer::preferredHeight(double width, const ChartStyle& style) const
{
    // The height holds any legend of a sane length. A longer one from a hostile console is cut, so that the pie stays
    // on the screen.
    const QSizeF tall(width, tallest * style.textScale);
    const LegendLayout legend = layoutLegend(m_model.legend, legendItems(), tall, style);
    const double beside = tall.height() - contentBeside(m_model.legend, legend, tall).height();
    const double box = std::min(std::max(width - 2 * margin, smallestBox), m_maximumDiameter);
    return beside + box + 2 * margin;
}

std::optional<qsizetype> PieChartRenderer::entryAt(const PieLayout& layout, QPointF position) const
{
    const QPointF offset = position - layout.center;
    const double distance = std::hypot(offset.x(), offset.y());
    if (distance > layout.radius || distance < layout.holeRadius) {
        return std::nullopt;
    }
    const double angle = std::atan2(offset.x(), -offset.y()) / degree;
    for (const PieSlice& slice : layout.slices) {
        if (normalized(angle - slice.start) < slice.sweep) {
            return slice.entry;
        }
    }
    return std::nullopt;
}

std::vector<LegendItem> PieChartRenderer::legendItems() const
{
    // Every entry has a label here, in the data's order: a state without a slice still exists.
    std::vector<LegendItem> items;
    const PieChartDataSet& dataSet = m_model.data.dataSet;
    items.reserve(static_cast<std::size_t>(dataSet.entries.size()));
    for (qsizetype i = 0; i < dataSet.entries.size(); ++i) {
        items.push_back({m_model.data.labelOf(dataSet.entries.at(i)), dataSet.colorAt(i)});
    }
    return items;
}

} // namespace lodestar
