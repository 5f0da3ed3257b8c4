// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartStyle.h"
#include "Charts/PlotSeries.h"

class QPainter;

namespace lodestar
{

/// What a layer is drawn with.
struct PlotCanvas {
    PlotTransform transform;
    ChartStyle style;
    ChartPhases phases;
    double pixelRatio = 1;         ///< Device pixels a point.
    qsizetype firstDataSet = 0;    ///< Number of the layer's first data set among all of the plot.
    PlotInterval wholeX = {0, -1}; ///< All of the x axis, zoomed in or not.

    /// The colour of the layer's data set of that position.
    QColor colorOf(const ChartDataSet& dataSet, qsizetype position) const
    {
        const qsizetype number = firstDataSet + position;
        return number < style.seriesColors.size() ? style.seriesColors.at(number) : dataSet.colorAt(0);
    }
};

/// One kind of mark over a plot's shared axes: lines, bars. Immutable once made; a plot draws its layers in order, the
/// last in front. A new kind of chart is a new layer.
class PlotLayer
{
public:
    PlotLayer() = default;
    PlotLayer(const PlotLayer&) = delete;
    PlotLayer& operator=(const PlotLayer&) = delete;
    virtual ~PlotLayer() = default;

    virtual qsizetype dataSetCount() const = 0;
    virtual const ChartDataSet& dataSet(qsizetype position) const = 0;
    /// The data set's entries made ready; of the same positions.
    virtual const PlotSeries& series(qsizetype position) const = 0;
    /// How far the layer reaches beyond its outermost x indices.
    virtual double sideRoom() const { return 0; }
    /// Whether its marks stand on 0, which then has to be on the axis.
    virtual bool standsOnZero() const { return false; }
    /// Draws within the painter's clip, which is the plot.
    virtual void draw(QPainter& painter, const PlotCanvas& canvas) const = 0;

    /// The data of all its series.
    PlotExtent extent() const;
};

} // namespace lodestar
