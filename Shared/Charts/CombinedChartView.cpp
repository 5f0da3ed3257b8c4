// SPDX-License-Identifier: Apache-2.0
#include "Charts/CombinedChartView.h"

#include "Charts/BarLayer.h"
#include "Charts/LineLayer.h"

namespace lodestar
{

void CombinedChartView::setData(const CombinedChartData& data)
{
    m_data = data;
    setLayers(data.xVals,
              {std::make_shared<BarLayer>(data.barDataSets), std::make_shared<LineLayer>(data.lineDataSets)});
}

} // namespace lodestar
