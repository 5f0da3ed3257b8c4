// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieChartModel.h"

namespace lodestar
{

QString PieChartModel::valueText(const ChartEntry& entry) const
{
    const double value = PieChartDataSet::chartedValue(entry);
    const double total = usePercentValues ? data.dataSet.total() : 0;
    return data.dataSet.valueFormatter.stringFromNumber(total > 0 ? value / total * 100 : value);
}

bool PieChartModel::isHighlighted(const ChartEntry& entry) const
{
    return highlights.contains(Highlight{entry.xIndex, 0});
}

} // namespace lodestar
