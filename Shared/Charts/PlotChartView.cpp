// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotChartView.h"

#include "Charts/BarLayer.h"
#include "Charts/LineLayer.h"

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr double legendOffset = 14; // Points that keep a legend below the plot off the card's edge.

} // namespace

PlotChartView::PlotChartView(QObject* parent) : ChartView(parent)
{
    m_model.legend.yOffset = legendOffset;
}

void PlotChartView::setNoDataText(const QString& text)
{
    if (m_model.noDataText != text) {
        m_model.noDataText = text;
        Q_EMIT changed();
        Q_EMIT dataChanged();
    }
}

void PlotChartView::setAccessibleText(const QString& text)
{
    if (m_accessibleText != text) {
        m_accessibleText = text;
        Q_EMIT dataChanged();
    }
}

QSizeF PlotChartView::smallestViewport() const
{
    const double step = m_model.xAxis.time ? m_model.xAxis.time->step : 1;
    return {std::min(1.0, 2 * step / m_model.wholeX().length()), 0.02};
}

void PlotChartView::setData(const PlotChartData& data)
{
    m_data = data;
    m_model.xVals = data.xVals;
    m_model.layers = {std::make_shared<BarLayer>(data.barDataSets, data.barStyle),
                      std::make_shared<LineLayer>(data.lineDataSets)};
    m_model.highlights.clear();
    m_model.viewport = {};
    read(std::nullopt);
    announceData();
}

void PlotChartView::setReadIndex(std::optional<double> index)
{
    std::optional<int> found;
    for (const PlotModel::Series& each : m_model.allSeries()) {
        const std::optional<ChartEntry> entry = index ? each.series->nearest(*index) : std::nullopt;
        if (entry && (!found || std::abs(entry->xIndex - *index) < std::abs(*found - *index))) {
            found = entry->xIndex;
        }
    }
    read(found);
}

void PlotChartView::stepReading(bool forward)
{
    const PlotInterval all = m_model.dataExtent().x;
    std::optional<int> found;
    for (const PlotModel::Series& each : m_model.allSeries()) {
        const double from = m_readIndex ? *m_readIndex : forward ? all.from - 1 : all.to + 1;
        const qsizetype position = each.series->lowerBound(forward ? from + 1 : from) - (forward ? 0 : 1);
        if (position >= 0 && position < each.series->size()) {
            const int index = each.series->at(position).xIndex;
            found = !found ? index : forward ? std::min(*found, index) : std::max(*found, index);
        }
    }
    if (found) {
        read(found);
    }
}

void PlotChartView::read(std::optional<int> index)
{
    if (m_readIndex != index) {
        m_readIndex = index;
        Q_EMIT readIndexChanged();
    }
}

void PlotChartView::select(const std::optional<Highlight>& highlight)
{
    const bool isNew = highlight && !m_model.highlights.contains(*highlight);
    ChartView::select(isNew ? m_model.entryOf(*highlight) : std::nullopt, highlight.value_or(Highlight()));
}

QString PlotChartView::accessibleText() const
{
    if (!m_accessibleText.isEmpty() && !m_model.isEmpty()) {
        return m_accessibleText;
    }
    QStringList texts;
    for (const PlotModel::Series& each : m_model.allSeries()) {
        if (!each.series->isEmpty()) {
            const QString value = each.dataSet->valueFormatter.stringFromNumber(each.series->latest().value);
            //: A data set's name and its latest value, as in "Processors Used 6.5".
            texts << tr("%1 %2").arg(each.dataSet->label, value).trimmed();
        }
    }
    //: Between the data sets of a chart as they are read out.
    return texts.isEmpty() ? m_model.noDataText : texts.join(tr(", "));
}

QString PlotChartView::selectedText() const
{
    if (m_model.highlights.isEmpty()) {
        return {};
    }
    const Highlight& highlight = m_model.highlights.constFirst();
    const std::optional<ChartEntry> entry = m_model.entryOf(highlight);
    if (!entry) {
        return {};
    }
    const ChartDataSet& dataSet = *m_model.allSeries()[static_cast<std::size_t>(highlight.dataSetIndex)].dataSet;
    //: A data set's name, the label of one of its values, and the value.
    return tr("%1, %2: %3")
        .arg(dataSet.label, m_model.xVals.value(entry->xIndex), dataSet.valueFormatter.stringFromNumber(entry->value));
}

} // namespace lodestar
