// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartView.h"

namespace lodestar
{

/// A chart of lines as its controller holds it.
class LineChartView : public lodestar::PlotChartView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(LineChartView)
    QML_UNCREATABLE("made by controllers")

public:
    using PlotChartView::PlotChartView;

    const LineChartData& data() const { return m_data; }
    /// Shows all of the data, with nothing highlighted. Empty data show the no-data text.
    void setData(const LineChartData& data);
    void clear() { setData({}); }

private:
    LineChartData m_data;
};

} // namespace lodestar
