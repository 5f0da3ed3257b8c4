// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieChartView.h"

namespace lodestar
{

void PieChartView::setData(const PieChartData& data)
{
    m_model.data = data;
    announceData();
}

void PieChartView::select(std::optional<qsizetype> entry)
{
    const QList<ChartEntry>& entries = m_model.data.dataSet.entries;
    if (entry && *entry >= 0 && *entry < entries.size() && entry != selectedEntry()) {
        ChartView::select(entries.at(*entry), {entries.at(*entry).xIndex, 0});
    } else {
        ChartView::select(std::nullopt, {});
    }
}

std::optional<qsizetype> PieChartView::selectedEntry() const
{
    const QList<ChartEntry>& entries = m_model.data.dataSet.entries;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (m_model.isHighlighted(entries.at(i))) {
            return i;
        }
    }
    return std::nullopt;
}

QString PieChartView::textOf(const ChartEntry& entry) const
{
    return (m_model.data.labelOf(entry) + QLatin1Char(' ') + m_model.valueText(entry)).trimmed();
}

QString PieChartView::accessibleText() const
{
    QStringList texts;
    for (const ChartEntry& entry : m_model.data.dataSet.entries) {
        texts << textOf(entry);
    }
    //: Between the parts of a chart as they are read out.
    return texts.join(tr(", "));
}

QString PieChartView::selectedText() const
{
    const std::optional<qsizetype> entry = selectedEntry();
    return entry ? textOf(m_model.data.dataSet.entries.at(*entry)) : QString();
}

} // namespace lodestar
