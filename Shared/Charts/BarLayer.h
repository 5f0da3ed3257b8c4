// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotLayer.h"

#include <vector>

namespace lodestar
{

/// The bars of a plot. Bars stand on 0 and grow out of it; bars of several data sets share the place of an x index.
class BarLayer : public PlotLayer
{
public:
    explicit BarLayer(const QList<BarChartDataSet>& dataSets);

    qsizetype dataSetCount() const override { return m_dataSets.size(); }
    const ChartDataSet& dataSet(qsizetype position) const override { return m_dataSets.at(position); }
    const PlotSeries& series(qsizetype position) const override;
    double sideRoom() const override { return m_dataSets.isEmpty() ? 0 : 0.5; }
    bool standsOnZero() const override { return !m_dataSets.isEmpty(); }
    void draw(QPainter& painter, const PlotCanvas& canvas) const override;

    /// A bar's box at its full size, in points of the chart.
    QRectF barOf(qsizetype position, const ChartEntry& entry, const PlotTransform& transform) const;

private:
    QList<BarChartDataSet> m_dataSets;
    std::vector<PlotSeries> m_series;
};

} // namespace lodestar
