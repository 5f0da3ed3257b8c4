// SPDX-License-Identifier: Apache-2.0
#include "Charts/LineLayer.h"

#include "Charts/LineMask.h"

#include <QLineF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr double denseFrom = 1;   // Entries per pixel column above which a line is reduced.
constexpr double roughFrom = 128; // Entries per pixel column above which columns take whole blocks.
constexpr double thin = 2;        // Up to this width in points, nobody can see whether a line has joins.
// Points outside the plot within which the line is still drawn, before it is cut off at the plot.
constexpr double beyond = 16;

/// The entries to draw: those in view and one neighbour on each side, so that the line goes on to the edges.
std::pair<qsizetype, qsizetype> rangeInView(const PlotSeries& series, const PlotTransform& transform)
{
    const qsizetype first = std::max<qsizetype>(series.lowerBound(transform.visible.x.from) - 1, 0);
    const qsizetype last = std::min(series.lowerBound(transform.visible.x.to) + 2, series.size());
    return {first, last};
}

QPointF pointOf(const ChartEntry& entry, const PlotTransform& transform)
{
    return {transform.toX(entry.xIndex), transform.toY(entry.value)};
}

/// Reduces a line to one rectangle per pixel column: from the least to the greatest value in the column, and half a
/// line's width beyond both. Straight pieces cross the columns that have no entry.
class Reduction
{
public:
    Reduction(const PlotSeries& series, const PlotTransform& transform, double pixelRatio, double lineWidth)
        : m_series(series), m_transform(transform), m_step(1 / pixelRatio), m_lineWidth(lineWidth)
    {
    }

    void run(std::vector<QRectF>& columns, QList<QLineF>& pieces)
    {
        const auto [start, end] = rangeInView(m_series, m_transform);
        // A column is a pixel that lies within the plot by more than half.
        const double stop = m_transform.plot.right() - m_step / 2;
        double x = std::round(m_transform.plot.left() / m_step) * m_step;
        qsizetype first = m_series.lowerBound(m_transform.visible.x.from);
        // With so many entries per column nobody can see the difference when a column ends at the end of a block.
        const bool isRough =
            m_series.isGapless() && static_cast<double>(end - start) > roughFrom * m_transform.plot.width() / m_step;
        bool joined = false; // Whether the column before had entries.
        for (; x < stop && first < end; x += m_step) {
            // The last column takes the entry on the plot's edge too; otherwise that entry would begin a column outside
            // the plot.
            const bool isLast = x + m_step >= stop;
            qsizetype last = m_series.lowerBound(isLast ? std::floor(m_transform.visible.x.to) + 1
                                                        : m_transform.toIndex(x + m_step));
            if (isRough && !isLast) {
                last = last / PlotSeries::blockSize * PlotSeries::blockSize;
            }
            if (first == last) {
                joined = false;
                continue;
            }
            if (!joined && first > start) {
                pieces << piece(first);
            }
            // The column also takes the last entry of the column before, so that steep lines have no gaps.
            append(columns, x, m_series.values(joined ? first - 1 : first, last));
            joined = true;
            first = last;
        }
        if (first > start && first < end) {
            pieces << piece(first);
        }
    }

private:
    QLineF piece(qsizetype to) const
    {
        return {pointOf(m_series.at(to - 1), m_transform), pointOf(m_series.at(to), m_transform)};
    }

    void append(std::vector<QRectF>& columns, double x, const PlotInterval& values)
    {
        const double left = m_transform.plot.left();
        const double right = m_transform.plot.right();
        const double upper = m_transform.plot.top() - beyond;
        const double lower = m_transform.plot.bottom() + beyond;
        const double top = std::clamp(m_transform.toY(values.to) - m_lineWidth / 2, upper, lower);
        const double bottom = std::clamp(m_transform.toY(values.from) + m_lineWidth / 2, upper, lower);
        const bool steep = bottom - top > 3 * m_lineWidth && m_lineWidth > m_step;
        if (steep) {
            // The rectangle is as wide as an upright line, but stays within the plot.
            const double start = std::clamp(x + (m_step - m_lineWidth) / 2, left, std::max(right - m_lineWidth, left));
            columns.emplace_back(start, top, m_lineWidth, bottom - top);
        } else if (!m_lastSteep && !columns.empty() && columns.back().top() == top &&
                   columns.back().bottom() == bottom && columns.back().right() > x - m_step / 2) {
            columns.back().setRight(std::min(x + m_step, right));
        } else {
            columns.emplace_back(QPointF(std::max(x, left), top), QPointF(std::min(x + m_step, right), bottom));
        }
        m_lastSteep = steep;
    }

    const PlotSeries& m_series;
    const PlotTransform& m_transform;
    double m_step;
    double m_lineWidth;
    bool m_lastSteep = false;
};

/// Draws one line.
class LineDrawing
{
public:
    LineDrawing(const LineChartDataSet& dataSet, const PlotSeries& series, const PlotCanvas& canvas,
                const QColor& color)
        : m_dataSet(dataSet), m_canvas(canvas), m_color(color), m_isSingle(series.size() == 1)
    {
        const PlotTransform& transform = canvas.transform;
        const auto [first, last] = rangeInView(series, transform);
        if (static_cast<double>(last - first) > denseFrom * transform.plot.width() * canvas.pixelRatio) {
            Reduction(series, transform, canvas.pixelRatio, dataSet.lineWidth).run(m_columns, m_pieces);
            return;
        }
        m_points.reserve(last - first);
        m_pieces.reserve(last - first);
        for (qsizetype i = first; i < last; ++i) {
            m_points << pointOf(series.at(i), transform);
            if (i > first) {
                m_pieces << QLineF(m_points.at(m_points.size() - 2), m_points.constLast());
            }
        }
    }

    void draw(QPainter& painter) const
    {
        drawLineMask(painter, m_columns, m_color, m_canvas.pixelRatio);
        if (m_isSingle) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(m_color);
            // A single value makes no line, so a dot shows it.
            const double radius = std::max(m_dataSet.lineWidth, 1.5);
            painter.drawEllipse(m_points.constFirst(), radius, radius);
        }
        drawStrokes(painter);
        drawCircles(painter);
    }

private:
    void drawStrokes(QPainter& painter) const
    {
        const double width = m_dataSet.lineWidth;
        if (!(width > 0)) {
            return;
        }
        painter.setBrush(Qt::NoBrush);
        if (m_points.isEmpty() || (width <= thin && m_color.alpha() == 255)) {
            // Separate pieces take a tenth of the time of a joined outline and look the same, unless the line is so
            // wide that its corners show, or is translucent, so that overlaps show.
            painter.setPen(QPen(m_color, width, Qt::SolidLine, Qt::SquareCap));
            painter.drawLines(m_pieces);
        } else {
            painter.setPen(QPen(m_color, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
            painter.drawPolyline(m_points);
        }
    }

    void drawCircles(QPainter& painter) const
    {
        const double radius = m_dataSet.circleRadius;
        if (!(radius > 0)) {
            return;
        }
        painter.setPen(Qt::NoPen);
        for (const QPointF& point : m_points) {
            painter.setBrush(m_color);
            painter.drawEllipse(point, radius, radius);
            if (m_dataSet.drawCircleHoleEnabled) {
                painter.setBrush(m_canvas.style.cardColor);
                painter.drawEllipse(point, radius / 2, radius / 2);
            }
        }
    }

    const LineChartDataSet& m_dataSet;
    const PlotCanvas& m_canvas;
    QColor m_color;
    bool m_isSingle;
    QPolygonF m_points;
    QList<QLineF> m_pieces; // From point to point, or across columns without entries.
    std::vector<QRectF> m_columns;
};

} // namespace

void LineLayer::update(const PlotCanvas& canvas) const
{
    QList<QColor> colors;
    while (colors.size() < dataSetCount()) {
        colors << canvas.colorOf(dataSet(colors.size()), colors.size());
    }
    const QColor& cardColor = canvas.style.cardColor;
    if (m_picture.transform == canvas.transform && m_picture.pixelRatio == canvas.pixelRatio &&
        m_picture.colors == colors && m_picture.cardColor == cardColor) {
        return;
    }
    const double ratio = canvas.pixelRatio;
    const QRectF shown = canvas.transform.plot.adjusted(-beyond, -beyond, beyond, beyond);
    const QRect pixels = QRectF(shown.topLeft() * ratio, shown.size() * ratio).toAlignedRect();
    m_picture = {canvas.transform, ratio, colors, cardColor, pixels.topLeft(), std::move(m_picture.image)};
    if (m_picture.image.size() != pixels.size()) {
        m_picture.image = QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    }
    m_picture.image.fill(Qt::transparent);
    QPainter painter(&m_picture.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-pixels.topLeft());
    painter.scale(ratio, ratio);
    for (qsizetype i = 0; i < dataSetCount(); ++i) {
        if (!series(i).isEmpty()) {
            LineDrawing(part(i).dataSet, series(i), canvas, colors.at(i)).draw(painter);
        }
    }
}

void LineLayer::draw(QPainter& painter, const PlotCanvas& canvas) const
{
    // The lines grow from the start of the whole axis, even when a later part of it is in view.
    const double grown = std::clamp(canvas.phases.x, 0.0, 1.0);
    if (grown <= 0) {
        return;
    }
    update(canvas);
    painter.save();
    if (grown < 1) {
        const double end = canvas.transform.toX(canvas.wholeX.from + grown * canvas.wholeX.length());
        QRectF shown = canvas.transform.plot.adjusted(-canvas.transform.plot.width(), -100, 0, 100);
        shown.setRight(std::max(end, shown.left()));
        painter.setClipRect(shown, Qt::IntersectClip);
    }
    // Scaled to device pixels, the painter copies the picture; in points it would resample it, which takes far longer.
    painter.scale(1 / canvas.pixelRatio, 1 / canvas.pixelRatio);
    painter.drawImage(m_picture.position, m_picture.image);
    painter.restore();
}

} // namespace lodestar
