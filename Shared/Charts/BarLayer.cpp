// SPDX-License-Identifier: Apache-2.0
#include "Charts/BarLayer.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr double barSpace = 0.2; // Share of a bar's place that stays empty.

/// The entries whose bars are in view.
std::pair<qsizetype, qsizetype> rangeInView(const PlotSeries& series, const PlotInterval& x, double place)
{
    return {series.lowerBound(x.from - place / 2), series.lowerBound(x.to + place / 2)};
}

/// The box with the corners of its upper or its lower end rounded.
QPainterPath roundedAtEnd(const QRectF& box, bool upper, double radius)
{
    const double round = std::min({radius, box.width() / 2, box.height()});
    // The box goes on beyond the end that stays square, and is cut off there.
    const double beyond = 2 * round;
    QPainterPath whole;
    whole.addRoundedRect(box.adjusted(0, upper ? 0 : -beyond, 0, upper ? beyond : 0), round, round);
    QPainterPath shown;
    shown.addRect(box);
    return whole.intersected(shown);
}

} // namespace

QRectF BarLayer::barOf(qsizetype position, const ChartEntry& entry, const PlotTransform& transform) const
{
    const double group = m_style.place * m_style.share / (1 - barSpace);
    const double place = group / static_cast<double>(m_style.sharesPlace ? 1 : dataSetCount());
    const double gap = place * barSpace;
    const double start =
        entry.xIndex - group / 2 + (m_style.sharesPlace ? 0 : place * static_cast<double>(position)) + gap / 2;
    // The whole bar keeps off the line, so that equal values stay equally long.
    const double off = entry.value > 0 ? -m_style.gap : m_style.gap;
    const QPointF base(transform.toX(start), transform.toY(0) + off);
    const QPointF end(transform.toX(start + place - gap), transform.toY(entry.value) + off);
    return QRectF(base, end).normalized();
}

void BarLayer::draw(QPainter& painter, const PlotCanvas& canvas) const
{
    painter.setPen(Qt::NoPen);
    const double grown = std::clamp(canvas.phases.x, 0.0, 1.0) * std::max(canvas.phases.y, 0.0);
    for (qsizetype i = 0; i < dataSetCount(); ++i) {
        const PlotSeries& entries = series(i);
        const auto [first, last] = rangeInView(entries, canvas.transform.visible.x, m_style.place);
        if (static_cast<double>(last - first) > canvas.transform.plot.width() * canvas.pixelRatio) {
            drawColumns(painter, canvas, i, grown);
            continue;
        }
        for (qsizetype e = first; e < last; ++e) {
            ChartEntry entry = entries.at(e);
            entry.value *= static_cast<float>(grown);
            if (entry.value == 0) {
                continue;
            }
            const QRectF bar = barOf(i, entry, canvas.transform);
            const QColor color = canvas.colorOf(dataSet(i), i);
            if (m_style.radius > 0) {
                painter.fillPath(roundedAtEnd(bar, entry.value > 0, m_style.radius), color);
            } else {
                painter.fillRect(bar, color);
            }
        }
    }
}

void BarLayer::drawColumns(QPainter& painter, const PlotCanvas& canvas, qsizetype position, double grown) const
{
    const PlotSeries& entries = series(position);
    const PlotTransform& transform = canvas.transform;
    const QColor color = canvas.colorOf(dataSet(position), position);
    const double step = 1 / canvas.pixelRatio;
    qsizetype first = entries.lowerBound(transform.visible.x.from);
    for (double x = std::round(transform.plot.left() / step) * step; x < transform.plot.right(); x += step) {
        const qsizetype last = entries.lowerBound(transform.toIndex(x + step));
        PlotInterval values = entries.values(first, last);
        first = last;
        if (values.isEmpty()) {
            continue;
        }
        values.include(0.0);
        const QPointF upper(x, transform.toY(values.to * grown));
        const QPointF lower(x + step, transform.toY(values.from * grown));
        painter.fillRect(QRectF(upper, lower), color);
    }
}

} // namespace lodestar
