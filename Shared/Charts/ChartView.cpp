// SPDX-License-Identifier: Apache-2.0
#include "Charts/ChartView.h"

namespace lodestar
{

void ChartView::setHidden(bool hidden)
{
    if (m_hidden != hidden) {
        m_hidden = hidden;
        Q_EMIT hiddenChanged();
    }
}

void ChartView::highlightValues(const QList<Highlight>& highlights)
{
    if (common().highlights != highlights) {
        common().highlights = highlights;
        Q_EMIT changed();
        Q_EMIT selectionChanged();
    }
}

void ChartView::announceData()
{
    Q_EMIT changed();
    Q_EMIT dataChanged();
    Q_EMIT selectionChanged();
}

void ChartView::select(const std::optional<ChartEntry>& entry, const Highlight& highlight)
{
    highlightValues(entry ? QList<Highlight>{highlight} : QList<Highlight>());
    if (m_delegate == nullptr) {
        return;
    }
    if (entry) {
        m_delegate->chartValueSelected(*this, *entry, highlight.dataSetIndex, highlight);
    } else {
        m_delegate->chartValueNothingSelected(*this);
    }
}

void ChartView::animate(double xAxisDuration, double yAxisDuration, ChartEasingOption easingOption)
{
    Q_EMIT animateRequested({xAxisDuration, yAxisDuration, easingOption});
}

} // namespace lodestar
