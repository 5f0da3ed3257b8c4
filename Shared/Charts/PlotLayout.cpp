// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotLayout.h"

#include "Charts/AxisTicks.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr double axisFontSize = 11;
constexpr double edge = 12;         // Points between the plot and the chart's edge where no label stands.
constexpr double top = 18;          // Points between the plot and the chart's upper edge.
constexpr double tickPitch = 44;    // Least distance between value ticks, in points.
constexpr double mostSteps = 10;    // Most steps between value ticks, however tall the plot is.
constexpr double labelGap = 8;      // Points between an axis and its labels.
constexpr double spaceStep = 20;    // Points per unit of `spaceBetweenLabels`.
constexpr double smallest = 24;     // In points; a plot that is narrower or lower is not drawn.
constexpr double compactStart = 26; // Least distance between the plot and the chart's left edge in a compact chart.

/// Finds room for the axis labels and places them.
class Placement
{
public:
    Placement(const PlotModel& model, const ChartFrame& frame)
        : m_model(model), m_scale(frame.style.textScale), m_size(frame.size), m_metrics(axisFont(frame.style))
    {
        m_layout.legend = layoutLegend(model.legend, legendItems(frame.style), frame.size, frame.style);
        m_layout.content = contentBeside(model.legend, m_layout.legend, frame.size);
    }

    PlotLayout layout()
    {
        if (!m_model.isEmpty()) {
            placePlot();
        }
        if (m_layout.hasPlot()) {
            placeIndices();
        }
        return m_layout;
    }

private:
    std::vector<LegendItem> legendItems(const ChartStyle& style) const
    {
        std::vector<LegendItem> items;
        if (m_model.isEmpty()) {
            return items;
        }
        for (const PlotModel::Series& each : m_model.allSeries()) {
            const auto number = static_cast<qsizetype>(items.size());
            const bool replaced = number < style.seriesColors.size();
            items.push_back({each.dataSet->label, replaced ? style.seriesColors.at(number) : each.dataSet->colorAt(0)});
        }
        return items;
    }

    bool hasIndicesAt(XAxisLabelPosition position) const
    {
        return m_model.xAxis.enabled && m_model.xAxis.labelPosition == position;
    }

    double lineHeight() const { return 14 * m_scale; }

    void placePlot()
    {
        QRectF plot = m_layout.content;
        const double room = labelGap + lineHeight();
        const double outside = m_model.compact ? 0 : edge;
        const double above = m_model.compact ? lineHeight() : top;
        plot.setTop(plot.top() + (hasIndicesAt(XAxisLabelPosition::Top) ? outside + room : above));
        plot.setBottom(plot.bottom() - (hasIndicesAt(XAxisLabelPosition::Bottom) ? room : 0) - outside);
        if (plot.height() < smallest) {
            return;
        }
        const double most = std::clamp(plot.height() / (tickPitch * m_scale), 1.0, mostSteps);
        const bool zero = m_model.leftAxis.startAtZeroEnabled ||
                          std::ranges::any_of(m_model.layers, [](const auto& layer) { return layer->standsOnZero(); });
        const QList<double>& given = m_model.leftAxis.labelledValues;
        m_layout.whole = {m_model.wholeX(), given.size() > 1 ? PlotInterval{given.constFirst(), given.constLast()}
                                                             : valueAxis(m_model.dataExtent().y, zero, most)};
        const PlotExtent visible = m_model.viewport.of(m_layout.whole);
        const TickStep step = given.size() > 1 ? TickStep{1, 0} : tickStep(visible.y.length(), most);
        m_layout.valueTicks = given.size() > 1 ? given : ticksWithin(visible.y, step);
        double widest = 0;
        for (const double tick : std::as_const(m_layout.valueTicks)) {
            widest = std::max(widest, m_metrics.horizontalAdvance(textOf(tick, step)));
        }
        const double beside = std::ceil(edge * 0.75 + widest + labelGap);
        const double compactBeside = std::max(compactStart * m_scale, std::ceil(widest + labelGap));
        plot.setLeft(plot.left() + (!m_model.leftAxis.enabled ? outside : m_model.compact ? compactBeside : beside));
        plot.setRight(plot.right() - (m_model.rightAxis.enabled ? beside : outside));
        if (plot.width() < smallest) {
            return;
        }
        m_layout.transform = {plot, visible};
        placeValues(step);
    }

    QString textOf(double tick, const TickStep& step) const
    {
        return step.text(m_model.leftAxis.drawSignEnabled ? tick : std::abs(tick));
    }

    void placeValues(const TickStep& step)
    {
        const QRectF& plot = m_layout.transform.plot;
        for (const double tick : std::as_const(m_layout.valueTicks)) {
            if (!m_layout.transform.visible.y.contains(tick)) {
                continue;
            }
            const QString text = textOf(tick, step);
            const QSizeF size(m_metrics.horizontalAdvance(text), m_metrics.capHeight());
            const double y = m_layout.transform.toY(tick) - size.height() / 2;
            if (m_model.leftAxis.enabled) {
                const double x = m_model.compact ? m_layout.content.left() : plot.left() - labelGap - size.width();
                m_layout.leftLabels.push_back({tick, text, {{x, y}, size}});
            }
            if (m_model.rightAxis.enabled) {
                m_layout.rightLabels.push_back({tick, text, {{plot.right() + labelGap, y}, size}});
            }
        }
    }

    /// The labels of every n-th index in view; nothing when they would come too close to each other.
    std::optional<std::vector<AxisLabel>> labelsEvery(int stride) const
    {
        const double gap = std::max(m_model.xAxis.spaceBetweenLabels, 0.0) * spaceStep * m_scale;
        const PlotInterval& visible = m_layout.transform.visible.x;
        const auto last = std::min(std::floor(visible.to), static_cast<double>(m_model.xVals.size() - 1));
        double index = std::max(std::ceil(visible.from / stride) * stride, 0.0);
        std::vector<AxisLabel> labels;
        for (; index <= last; index += stride) {
            const double most = m_size.width() - 2;
            QString text = m_model.xVals.at(static_cast<qsizetype>(index));
            double width = m_metrics.horizontalAdvance(text);
            if (width > most) {
                text = m_metrics.elidedText(text, Qt::ElideMiddle, most);
                width = m_metrics.horizontalAdvance(text);
            }
            // A label is centred below its index, but stays within the chart.
            const double x =
                std::clamp(m_layout.transform.toX(index) - width / 2, 1.0, std::max(most - width, 1.0) + 1);
            if (!labels.empty() && x < labels.back().box.right() + gap) {
                return std::nullopt;
            }
            labels.push_back({index, text, {x, 0, width, m_metrics.capHeight()}});
        }
        return labels;
    }

    void placeIndices()
    {
        if (m_model.xAxis.enabled && m_model.xAxis.time) {
            placeTimes(*m_model.xAxis.time);
            return;
        }
        if (!m_model.xAxis.enabled || m_model.xVals.isEmpty()) {
            return;
        }
        const PlotTransform& transform = m_layout.transform;
        if (!m_model.xAxis.labelledIndices.isEmpty()) {
            placeGivenIndices();
            return;
        }
        const double pitch = transform.plot.width() / transform.visible.x.length();
        // Starting at the narrowest possible label keeps the number of tries small.
        int stride =
            labelStride((std::max(m_model.xAxis.spaceBetweenLabels, 0.0) * spaceStep * m_scale + 4 * m_scale) / pitch);
        std::optional<std::vector<AxisLabel>> labels = labelsEvery(stride);
        while (!labels) {
            stride = labelStride(stride + 1.0);
            labels = labelsEvery(stride);
        }
        takeIndexLabels(std::move(*labels));
    }

    /// The ticks of the smallest step whose labels stand apart from each other.
    void placeTimes(const TimeScale& scale)
    {
        const PlotTransform& transform = m_layout.transform;
        const PlotInterval& visible = transform.visible.x;
        const double origin = static_cast<double>(scale.origin);
        const double gap = std::max(m_model.xAxis.spaceBetweenLabels, 0.0) * spaceStep * m_scale;
        const double pitch = transform.plot.width() / visible.length(); // Points per second.
        TimeStep step;
        std::vector<AxisLabel> labels;
        // Starting at the width of a usual label keeps the number of tries small.
        double least = (gap + m_metrics.horizontalAdvance(scale.text({scale.origin, TimeTick::Unit::Minute}))) / pitch;
        do {
            step = timeStep(least);
            labels = timeLabels(scale, timeTicks(origin + visible.from, origin + visible.to, step));
            double widest = 0;
            for (const AxisLabel& label : labels) {
                widest = std::max(widest, label.box.width());
            }
            least = std::max((widest + gap) / pitch, least);
        } while (timeStep(least) != step);
        // Where clocks change, ticks may be closer than a step, and the second label goes.
        std::vector<AxisLabel> shown;
        for (AxisLabel& label : labels) {
            if (shown.empty() || label.box.left() >= shown.back().box.right() + gap / 2) {
                shown.push_back(std::move(label));
            }
        }
        takeIndexLabels(std::move(shown));
    }

    std::vector<AxisLabel> timeLabels(const TimeScale& scale, const QList<TimeTick>& ticks) const
    {
        std::vector<AxisLabel> labels;
        for (const TimeTick& tick : ticks) {
            const auto index = static_cast<double>(tick.time - scale.origin);
            const QString text = scale.text(tick);
            const double width = m_metrics.horizontalAdvance(text);
            const double x =
                std::clamp(m_layout.transform.toX(index) - width / 2, 1.0, std::max(m_size.width() - width - 1, 1.0));
            labels.push_back({index, text, {x, 0, width, m_metrics.capHeight()}});
        }
        return labels;
    }

    void takeIndexLabels(std::vector<AxisLabel> labels)
    {
        const PlotTransform& transform = m_layout.transform;
        const bool isBelow = m_model.xAxis.labelPosition == XAxisLabelPosition::Bottom;
        const double middle = isBelow ? transform.plot.bottom() + labelGap + lineHeight() / 2
                                      : transform.plot.top() - labelGap - lineHeight() / 2;
        for (AxisLabel& label : labels) {
            label.box.moveTop(middle - label.box.height() / 2);
        }
        m_layout.indexLabels = std::move(labels);
    }

    /// The last label is placed first: it matters most, and what does not fit beside it is left out.
    void placeGivenIndices()
    {
        const QRectF& plot = m_layout.transform.plot;
        std::vector<AxisLabel> labels;
        double end = plot.right();
        for (auto each = m_model.xAxis.labelledIndices.crbegin(); each != m_model.xAxis.labelledIndices.crend();
             ++each) {
            const QString text = m_model.xVals.value(*each);
            const double width = m_metrics.horizontalAdvance(text);
            const double x = std::clamp(m_layout.transform.toX(*each) - width / 2, plot.left(),
                                        std::max(plot.left(), plot.right() - width));
            if (labels.empty() || x + width + labelGap <= end) {
                labels.insert(labels.begin(), {static_cast<double>(*each), text, {x, 0, width, m_metrics.capHeight()}});
                end = x;
            }
        }
        takeIndexLabels(std::move(labels));
    }

    const PlotModel& m_model;
    double m_scale;
    QSizeF m_size;
    QFontMetricsF m_metrics;
    PlotLayout m_layout;
};

} // namespace

QFont axisFont(const ChartStyle& style)
{
    QFont font = style.textFont;
    font.setPixelSize(qMax(1, qRound(axisFontSize * style.textScale)));
    return font;
}

PlotLayout layoutPlot(const PlotModel& model, const ChartFrame& frame)
{
    return Placement(model, frame).layout();
}

} // namespace lodestar
