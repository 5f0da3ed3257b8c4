// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotRenderer.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace lodestar
{
namespace
{

constexpr double noDataSize = 15;
constexpr double noDataMeasure = 280;
constexpr double lowest = 320; // Least and greatest height in points that a chart asks for.
constexpr double highest = 640;
constexpr double tint = 0.25; // Opacity of the grid's colour as the plot's ground.

/// A pen with the given dashes. Lengths are in points; Qt's pens take multiples of their width.
QPen dashedPen(const QColor& color, double width, const QList<double>& lengths)
{
    QPen pen(color, width, Qt::SolidLine, Qt::FlatCap);
    const bool valid = std::ranges::all_of(lengths, [](double length) { return length >= 0 && std::isfinite(length); });
    const double sum = valid ? std::accumulate(lengths.begin(), lengths.end(), 0.0) : 0;
    if (sum > 0 && width > 0) {
        QList<qreal> pattern;
        // A list of odd length runs twice, with dashes and gaps exchanged the second time.
        for (const double length : lengths.size() % 2 == 0 ? lengths : lengths + lengths) {
            pattern << length / width;
        }
        pen.setDashPattern(pattern);
    }
    return pen;
}

/// Moves a line's middle so that a line of one point covers whole pixels.
double crisp(double position, double pixelRatio)
{
    const double width = std::max(1.0, std::round(pixelRatio));
    return (std::round(position * pixelRatio - width / 2) + width / 2) / pixelRatio;
}

double pixelRatioOf(const QPainter& painter)
{
    const double ratio = painter.deviceTransform().m11();
    return ratio > 0 && std::isfinite(ratio) ? ratio : 1;
}

} // namespace

void PlotRenderer::draw(QPainter& painter, const ChartFrame& frame) const
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const PlotLayout placed = layout(frame);
    drawLegend(painter, m_model.legend, placed.legend, frame.style);
    if (m_model.isEmpty()) {
        drawNoData(painter, placed, frame.style);
        return;
    }
    if (!placed.hasPlot()) {
        return;
    }
    drawGrid(painter, placed, frame.style);
    drawLimitLines(painter, placed, frame.style, true);
    drawAxes(painter, placed, frame.style);
    drawLayers(painter, placed, frame);
    drawLimitLines(painter, placed, frame.style, false);
    drawHighlights(painter, placed, frame.style);
    drawDescription(painter, m_model.descriptionText, placed.transform.plot.adjusted(4, 4, -4, -4), frame.style);
}

void PlotRenderer::drawGrid(QPainter& painter, const PlotLayout& layout, const ChartStyle& style) const
{
    const QRectF& plot = layout.transform.plot;
    const double ratio = pixelRatioOf(painter);
    if (m_model.drawGridBackgroundEnabled) {
        QColor ground = style.gridColor;
        ground.setAlphaF(static_cast<float>(tint));
        painter.fillRect(plot, ground);
    }
    for (const YAxis* axis : {&m_model.leftAxis, &m_model.rightAxis}) {
        if (axis->enabled && axis->drawGridLinesEnabled) {
            painter.setPen(dashedPen(style.gridColor, 1, axis->gridLineDashLengths));
            for (const double tick : layout.valueTicks) {
                const double y = crisp(layout.transform.toY(tick), ratio);
                painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
            }
        }
    }
    if (m_model.xAxis.enabled && m_model.xAxis.drawGridLinesEnabled) {
        painter.setPen(dashedPen(style.gridColor, 1, m_model.xAxis.gridLineDashLengths));
        for (const AxisLabel& label : layout.indexLabels) {
            const double x = crisp(layout.transform.toX(label.at), ratio);
            painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
        }
    }
}

void PlotRenderer::drawAxes(QPainter& painter, const PlotLayout& layout, const ChartStyle& style) const
{
    const QRectF& plot = layout.transform.plot;
    const double ratio = pixelRatioOf(painter);
    const double left = crisp(plot.left(), ratio);
    const double right = crisp(plot.right(), ratio);
    const double upper = crisp(plot.top(), ratio);
    const double lower = crisp(plot.bottom(), ratio);
    painter.setPen(QPen(style.axisColor, 1, Qt::SolidLine, Qt::SquareCap));
    if (m_model.leftAxis.enabled && m_model.leftAxis.drawAxisLineEnabled) {
        painter.drawLine(QPointF(left, upper), QPointF(left, lower));
    }
    if (m_model.rightAxis.enabled && m_model.rightAxis.drawAxisLineEnabled) {
        painter.drawLine(QPointF(right, upper), QPointF(right, lower));
    }
    if (m_model.leftAxis.drawZeroLineEnabled && layout.transform.visible.y.contains(0)) {
        const double y = crisp(layout.transform.toY(0), ratio);
        painter.drawLine(QPointF(left, y), QPointF(plot.right(), y));
    }
    if (m_model.xAxis.enabled && m_model.xAxis.drawAxisLineEnabled) {
        const double y = m_model.xAxis.labelPosition == XAxisLabelPosition::Top ? upper : lower;
        painter.drawLine(QPointF(left, y), QPointF(plot.right(), y));
    }
    painter.setFont(axisFont(style));
    painter.setPen(style.textColor);
    for (const auto* labels : {&layout.leftLabels, &layout.rightLabels, &layout.indexLabels}) {
        for (const AxisLabel& label : *labels) {
            painter.drawText(label.box.bottomLeft(), label.text);
        }
    }
}

void PlotRenderer::drawLayers(QPainter& painter, const PlotLayout& layout, const ChartFrame& frame) const
{
    PlotCanvas canvas;
    canvas.transform = layout.transform;
    canvas.style = frame.style;
    canvas.phases = frame.phases;
    canvas.pixelRatio = pixelRatioOf(painter);
    canvas.wholeX = layout.whole.x;
    // At an edge where the data end, the outermost marks are shown whole.
    constexpr double markRoom = 8;
    const PlotViewport& seen = m_model.viewport;
    const QRectF clip =
        layout.transform.plot.adjusted(seen.x <= 0 ? -markRoom : 0, seen.y + seen.height >= 1 ? -markRoom : 0,
                                       seen.x + seen.width >= 1 ? markRoom : 0, seen.y <= 0 ? markRoom : 0);
    painter.save();
    painter.setClipRect(clip, Qt::IntersectClip);
    for (const auto& layer : m_model.layers) {
        layer->draw(painter, canvas);
        canvas.firstDataSet += layer->dataSetCount();
    }
    painter.restore();
}

void PlotRenderer::drawLimitLines(QPainter& painter, const PlotLayout& layout, const ChartStyle& style,
                                  bool behindData) const
{
    const QRectF& plot = layout.transform.plot;
    painter.setFont(axisFont(style));
    const auto drawLines = [&](const ChartAxis& axis, auto place) {
        if (axis.enabled && axis.drawLimitLinesBehindDataEnabled == behindData) {
            for (const LimitLine& line : axis.limitLines) {
                painter.setPen(dashedPen(line.lineColor, line.lineWidth, line.lineDashLengths));
                place(line);
            }
        }
    };
    const auto across = [&](const LimitLine& line) {
        if (layout.transform.visible.y.contains(line.limit)) {
            const double y = layout.transform.toY(line.limit);
            painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
            painter.setPen(style.textColor);
            const bool above = y - plot.top() > painter.fontMetrics().height();
            const QRectF box = above ? QRectF(plot.topLeft(), QPointF(plot.right(), y - 3))
                                     : QRectF(QPointF(plot.left(), y + 3), plot.bottomRight());
            painter.drawText(box, static_cast<int>(Qt::AlignRight | (above ? Qt::AlignBottom : Qt::AlignTop)),
                             line.label);
        }
    };
    const auto upright = [&](const LimitLine& line) {
        if (layout.transform.visible.x.contains(line.limit)) {
            const double x = layout.transform.toX(line.limit);
            painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
            painter.setPen(style.textColor);
            const bool after = plot.right() - x > QFontMetricsF(painter.font()).horizontalAdvance(line.label) + 4;
            const QRectF box = after ? QRectF(QPointF(x + 4, plot.top()), plot.bottomRight())
                                     : QRectF(plot.topLeft(), QPointF(x - 4, plot.bottom()));
            painter.drawText(box, static_cast<int>((after ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignTop),
                             line.label);
        }
    };
    drawLines(m_model.xAxis, upright);
    drawLines(m_model.leftAxis, across);
    drawLines(m_model.rightAxis, across);
}

void PlotRenderer::drawHighlights(QPainter& painter, const PlotLayout& layout, const ChartStyle& style) const
{
    for (const Highlight& highlight : m_model.highlights) {
        const std::optional<ChartEntry> entry = m_model.entryOf(highlight);
        const PlotExtent& visible = layout.transform.visible;
        if (!entry || !visible.x.contains(entry->xIndex) || !visible.y.contains(entry->value)) {
            continue;
        }
        const QPointF point(layout.transform.toX(entry->xIndex), layout.transform.toY(entry->value));
        const QRectF& plot = layout.transform.plot;
        if (m_model.highlightIndicatorEnabled) {
            painter.setPen(QPen(style.textColor, 1));
            painter.drawLine(QPointF(point.x(), plot.top()), QPointF(point.x(), plot.bottom()));
            painter.drawLine(QPointF(plot.left(), point.y()), QPointF(plot.right(), point.y()));
        }
        painter.setPen(QPen(style.cardColor, 2));
        painter.setBrush(style.textColor);
        painter.drawEllipse(point, 4, 4);
    }
}

void PlotRenderer::drawNoData(QPainter& painter, const PlotLayout& layout, const ChartStyle& style) const
{
    QFont font = style.textFont;
    font.setPixelSize(qMax(1, qRound(noDataSize * style.textScale)));
    painter.setFont(font);
    painter.setPen(style.textColor);
    const double width = std::min(layout.content.width() - 2 * 20, noDataMeasure * style.textScale);
    const QRectF box(layout.content.center().x() - width / 2, layout.content.top(), width, layout.content.height());
    painter.drawText(box, static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, m_model.noDataText);
}

double PlotRenderer::preferredHeight(double width, const ChartStyle& style) const
{
    return std::min(std::clamp(width, lowest, highest) * std::max(style.textScale, 1.0), highest);
}

std::optional<Highlight> PlotRenderer::entryAt(const PlotLayout& layout, QPointF position) const
{
    if (!layout.hasPlot() || !layout.transform.plot.adjusted(-8, -8, 8, 8).contains(position)) {
        return std::nullopt;
    }
    std::optional<Highlight> best;
    double bestAcross = std::numeric_limits<double>::infinity();
    double bestUp = bestAcross;
    int number = 0;
    for (const PlotModel::Series& each : m_model.allSeries()) {
        if (const auto entry = each.series->nearest(layout.transform.toIndex(position.x()))) {
            const double across = std::abs(layout.transform.toX(entry->xIndex) - position.x());
            const double up = std::abs(layout.transform.toY(entry->value) - position.y());
            if (across < bestAcross - 0.5 || (across < bestAcross + 0.5 && up < bestUp)) {
                best = Highlight{entry->xIndex, number};
                bestAcross = across;
                bestUp = up;
            }
        }
        ++number;
    }
    return best;
}

} // namespace lodestar
