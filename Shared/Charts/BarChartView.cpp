// SPDX-License-Identifier: Apache-2.0
#include "Charts/BarChartView.h"

#include "Charts/BarLayer.h"

namespace lodestar
{

void BarChartView::setData(const BarChartData& data)
{
    m_data = data;
    setLayers(data.xVals, {std::make_shared<BarLayer>(data.dataSets)});
}

} // namespace lodestar
