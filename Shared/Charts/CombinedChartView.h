// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartView.h"

namespace lodestar
{

/// A controller's side of a chart of bars and the lines in front of them.
class CombinedChartView : public lodestar::PlotChartView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CombinedChartView)
    QML_UNCREATABLE("made by controllers")

public:
    using PlotChartView::PlotChartView;

    const CombinedChartData& data() const { return m_data; }
    /// Shows the data whole, with nothing highlighted. Empty data show the no-data text.
    void setData(const CombinedChartData& data);
    void clear() { setData({}); }

private:
    CombinedChartData m_data;
};

} // namespace lodestar
