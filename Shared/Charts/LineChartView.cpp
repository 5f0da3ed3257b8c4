// SPDX-License-Identifier: Apache-2.0
#include "Charts/LineChartView.h"

#include "Charts/LineLayer.h"

namespace lodestar
{

void LineChartView::setData(const LineChartData& data)
{
    m_data = data;
    setLayers(data.xVals, {std::make_shared<LineLayer>(data.dataSets)});
}

} // namespace lodestar
