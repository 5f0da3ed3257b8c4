// SPDX-License-Identifier: Apache-2.0
#include "Charts/ChartData.h"

#include <cmath>

namespace lodestar
{

QFont chartFont(const QString& family, double size)
{
    QFont font(family);
    font.setPixelSize(qMax(1, qRound(size)));
    // A value's outline and its fill are drawn separately and have to meet exactly, so glyphs are not hinted.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QColor ChartDataSet::colorAt(qsizetype position) const
{
    return colors.isEmpty() ? QColor(145, 145, 145) : colors.at(position % colors.size());
}

double PieChartDataSet::chartedValue(const ChartEntry& entry)
{
    return std::isfinite(entry.value) && entry.value > 0 ? static_cast<double>(entry.value) : 0.0;
}

double PieChartDataSet::total() const
{
    double sum = 0;
    for (const ChartEntry& entry : entries) {
        sum += chartedValue(entry);
    }
    return sum;
}

} // namespace lodestar
