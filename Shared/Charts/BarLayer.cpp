// SPDX-License-Identifier: Apache-2.0
#include "Charts/BarLayer.h"

#include <QPainter>

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr double groupShare = 0.8; // Share of an x index's place that its bars take together.
constexpr double barSpace = 0.2;   // Share of a bar's place that stays empty.

/// The entries whose bars are in view.
std::pair<qsizetype, qsizetype> rangeInView(const PlotSeries& series, const PlotInterval& x)
{
    return {series.lowerBound(x.from - 0.5), series.lowerBound(x.to + 0.5)};
}

} // namespace

QRectF BarLayer::barOf(qsizetype position, const ChartEntry& entry, const PlotTransform& transform) const
{
    const double place = groupShare / static_cast<double>(dataSetCount());
    const double gap = place * barSpace;
    const double start = entry.xIndex - groupShare / 2 + place * static_cast<double>(position) + gap / 2;
    const QPointF base(transform.toX(start), transform.toY(0));
    const QPointF end(transform.toX(start + place - gap), transform.toY(entry.value));
    return QRectF(base, end).normalized();
}

void BarLayer::draw(QPainter& painter, const PlotCanvas& canvas) const
{
    painter.setPen(Qt::NoPen);
    const double grown = std::clamp(canvas.phases.x, 0.0, 1.0) * std::max(canvas.phases.y, 0.0);
    for (qsizetype i = 0; i < dataSetCount(); ++i) {
        const PlotSeries& entries = series(i);
        const auto [first, last] = rangeInView(entries, canvas.transform.visible.x);
        for (qsizetype e = first; e < last; ++e) {
            ChartEntry entry = entries.at(e);
            entry.value *= static_cast<float>(grown);
            painter.fillRect(barOf(i, entry, canvas.transform), canvas.colorOf(dataSet(i), i));
        }
    }
}

} // namespace lodestar
