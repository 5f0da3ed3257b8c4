// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartView.h"

namespace lodestar
{

/// A chart of bars, with lines in front of them, as its controller holds it.
class CombinedChartView : public lodestar::PlotChartView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CombinedChartView)
    QML_UNCREATABLE("made by controllers")

public:
    using PlotChartView::PlotChartView;

    const CombinedChartData& data() const { return m_data; }
    /// Shows all of the data, with nothing highlighted. Empty data show the no-data text.
    void setData(const CombinedChartData& data);
    void clear() { setData({}); }

private:
    CombinedChartData m_data;
};

} // namespace lodestar
