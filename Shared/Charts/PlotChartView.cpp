// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotChartView.h"

#include "Charts/BarLayer.h"
#include "Charts/LineLayer.h"

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
    return {std::min(1.0, 2 / m_model.wholeX().length()), 0.02};
}

void PlotChartView::setData(const PlotChartData& data)
{
    m_data = data;
    m_model.xVals = data.xVals;
    m_model.layers = {std::make_shared<BarLayer>(data.barDataSets, data.barStyle),
                      std::make_shared<LineLayer>(data.lineDataSets)};
    m_model.highlights.clear();
    m_model.viewport = {};
    announceData();
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
