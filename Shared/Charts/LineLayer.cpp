// SPDX-License-Identifier: Apache-2.0
#include "Charts/LineLayer.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr double denseFrom = 2; // Entries a pixel column.

/// The entries to be drawn: those in view and their neighbours on both sides, to which the line goes on.
std::pair<qsizetype, qsizetype> rangeInView(const PlotSeries& series, const PlotTransform& transform)
{
    const qsizetype first = std::max<qsizetype>(series.lowerBound(transform.visible.x.from) - 1, 0);
    const qsizetype last = std::min(series.lowerBound(transform.visible.x.to) + 2, series.size());
    return {first, last};
}

/// One rectangle a pixel column, from the least to the greatest value in it and half a line's width beyond.
std::vector<QRectF> columnsOf(const PlotSeries& series, const PlotTransform& transform, double pixelRatio,
                              double lineWidth)
{
    const double step = 1 / pixelRatio;
    const double origin = std::floor(transform.plot.left() * pixelRatio) / pixelRatio;
    const auto count = static_cast<int>(std::ceil((transform.plot.right() - origin) * pixelRatio)) + 1;
    std::vector<QRectF> columns;
    qsizetype first = series.lowerBound(transform.toIndex(origin));
    for (int column = 0; column < count; ++column) {
        const double x = origin + column * step;
        const qsizetype last = series.lowerBound(transform.toIndex(x + step));
        // The neighbour on the left belongs to the column too, so that steep lines stay whole.
        PlotInterval values = series.values(std::max<qsizetype>(first - 1, 0), last);
        if (first < last && !values.isEmpty()) {
            const double top = transform.toY(values.to) - lineWidth / 2;
            const double bottom = transform.toY(values.from) + lineWidth / 2;
            const bool level = !columns.empty() && columns.back().top() == top && columns.back().bottom() == bottom &&
                               std::abs(columns.back().right() - x) < step / 2;
            if (level) {
                columns.back().setRight(x + step);
            } else {
                columns.emplace_back(x, top, step, bottom - top);
            }
        }
        first = last;
    }
    return columns;
}

} // namespace

LineLayer::LineLayer(const QList<LineChartDataSet>& dataSets)
{
    m_lines.reserve(static_cast<std::size_t>(dataSets.size()));
    for (const LineChartDataSet& dataSet : dataSets) {
        Line line;
        line.dataSet = dataSet;
        line.series = PlotSeries(dataSet.entries);
        m_lines.push_back(std::move(line));
    }
}

const ChartDataSet& LineLayer::dataSet(qsizetype position) const
{
    return m_lines.at(static_cast<std::size_t>(position)).dataSet;
}

const PlotSeries& LineLayer::series(qsizetype position) const
{
    return m_lines.at(static_cast<std::size_t>(position)).series;
}

void LineLayer::prepare(const Line& line, const PlotCanvas& canvas)
{
    if (line.transform == canvas.transform && line.pixelRatio == canvas.pixelRatio) {
        return;
    }
    line.transform = canvas.transform;
    line.pixelRatio = canvas.pixelRatio;
    line.points.clear();
    line.columns.clear();
    const auto [first, last] = rangeInView(line.series, canvas.transform);
    if (static_cast<double>(last - first) > denseFrom * canvas.transform.plot.width() * canvas.pixelRatio) {
        line.columns = columnsOf(line.series, canvas.transform, canvas.pixelRatio, line.dataSet.lineWidth);
        return;
    }
    line.points.reserve(last - first);
    for (qsizetype i = first; i < last; ++i) {
        const ChartEntry& entry = line.series.at(i);
        line.points << QPointF(canvas.transform.toX(entry.xIndex), canvas.transform.toY(entry.value));
    }
}

void LineLayer::draw(QPainter& painter, const PlotCanvas& canvas) const
{
    painter.save();
    // The lines grow from the start of the axis, not of what is seen of it.
    const double grown = std::clamp(canvas.phases.x, 0.0, 1.0);
    if (grown < 1) {
        const double end = canvas.transform.toX(canvas.wholeX.from + grown * canvas.wholeX.length());
        QRectF shown = canvas.transform.plot.adjusted(-canvas.transform.plot.width(), -100, 0, 100);
        shown.setRight(std::max(end, shown.left()));
        painter.setClipRect(shown, Qt::IntersectClip);
    }
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const Line& line = m_lines[i];
        const double width = line.dataSet.lineWidth;
        if (line.series.isEmpty()) {
            continue;
        }
        prepare(line, canvas);
        const QColor color = canvas.colorOf(line.dataSet, static_cast<qsizetype>(i));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRects(line.columns.data(), static_cast<int>(line.columns.size()));
        if (line.series.size() == 1) {
            const double radius = std::max(width, 1.5); // A single value is no line, but is not to be overlooked.
            painter.drawEllipse(line.points.constFirst(), radius, radius);
        }
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        if (width > 0) {
            painter.drawPolyline(line.points);
        }
        drawCircles(painter, line, color, canvas);
    }
    painter.restore();
}

void LineLayer::drawCircles(QPainter& painter, const Line& line, const QColor& color, const PlotCanvas& canvas)
{
    const double radius = line.dataSet.circleRadius;
    if (!(radius > 0)) {
        return;
    }
    painter.setPen(Qt::NoPen);
    for (const QPointF& point : line.points) {
        painter.setBrush(color);
        painter.drawEllipse(point, radius, radius);
        if (line.dataSet.drawCircleHoleEnabled) {
            painter.setBrush(canvas.style.cardColor);
            painter.drawEllipse(point, radius / 2, radius / 2);
        }
    }
}

} // namespace lodestar
