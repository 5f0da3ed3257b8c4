// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotLayer.h"

namespace lodestar
{

/// The bars of a plot. Bars stand on 0 and grow out of it, upwards and downwards. Where more bars than pixel columns
/// are in view, every column is filled as far as its longest bars reach.
class BarLayer : public SeriesLayer<BarChartDataSet>
{
public:
    explicit BarLayer(const QList<BarChartDataSet>& dataSets, const BarStyle& style = {})
        : SeriesLayer(dataSets), m_style(style)
    {
    }

    double sideRoom() const override { return dataSetCount() == 0 ? 0 : m_style.place / 2; }
    bool standsOnZero() const override { return dataSetCount() > 0; }
    void draw(QPainter& painter, const PlotCanvas& canvas) const override;

private:
    void drawColumns(QPainter& painter, const PlotCanvas& canvas, qsizetype position, double grown) const;
    /// A bar's box at its full size, in points of the chart.
    QRectF barOf(qsizetype position, const ChartEntry& entry, const PlotTransform& transform) const;

    BarStyle m_style;
};

} // namespace lodestar
