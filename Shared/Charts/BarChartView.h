// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartView.h"

namespace lodestar
{

/// A chart of bars as its controller holds it.
class BarChartView : public lodestar::PlotChartView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(BarChartView)
    QML_UNCREATABLE("made by controllers")

public:
    using PlotChartView::PlotChartView;

    const BarChartData& data() const { return m_data; }
    /// Shows all of the data, with nothing highlighted. Empty data show the no-data text.
    void setData(const BarChartData& data);
    void clear() { setData({}); }

private:
    BarChartData m_data;
};

} // namespace lodestar
