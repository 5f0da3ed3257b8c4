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

void ChartView::animate(double xAxisDuration, double yAxisDuration, ChartEasingOption easingOption)
{
    Q_EMIT animateRequested({xAxisDuration, yAxisDuration, easingOption});
}

} // namespace lodestar
