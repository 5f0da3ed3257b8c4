// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartView.h"

namespace lodestar
{

/// A controller's side of a chart of bars.
class BarChartView : public lodestar::PlotChartView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(BarChartView)
    QML_UNCREATABLE("made by controllers")

public:
    using PlotChartView::PlotChartView;

    const BarChartData& data() const { return m_data; }
    /// Shows the data whole, with nothing highlighted. Empty data show the no-data text.
    void setData(const BarChartData& data);
    void clear() { setData({}); }

private:
    BarChartData m_data;
};

} // namespace lodestar
