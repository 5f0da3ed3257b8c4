// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartStyle.h"
#include "Charts/PlotSeries.h"

#include <iterator>
#include <vector>

class QPainter;

namespace lodestar
{

/// Everything that a layer draws with, apart from its data.
struct PlotCanvas {
    PlotTransform transform;
    ChartStyle style;
    ChartPhases phases;
    double pixelRatio = 1;         ///< Device pixels per point.
    qsizetype firstDataSet = 0;    ///< Number of the layer's first data set, counted through all layers.
    PlotInterval wholeX = {0, -1}; ///< The whole x axis, zoomed in or not.

    /// The colour of a data set, given by its position within the layer.
    QColor colorOf(const ChartDataSet& dataSet, qsizetype position) const
    {
        const qsizetype number = firstDataSet + position;
        return number < style.seriesColors.size() ? style.seriesColors.at(number) : dataSet.colorAt(0);
    }
};

/// One kind of mark over a plot's shared axes, such as lines or bars. Layers never change once made; a plot draws them
/// in order, the last in front. A new kind of chart is a new layer.
class PlotLayer
{
public:
    PlotLayer() = default;
    PlotLayer(const PlotLayer&) = delete;
    PlotLayer& operator=(const PlotLayer&) = delete;
    virtual ~PlotLayer() = default;

    virtual qsizetype dataSetCount() const = 0;
    virtual const ChartDataSet& dataSet(qsizetype position) const = 0;
    /// The entries of the data set at this position, prepared for drawing.
    virtual const PlotSeries& series(qsizetype position) const = 0;
    /// How far the marks reach beyond the outermost x indices, in indices.
    virtual double sideRoom() const { return 0; }
    /// Whether the marks stand on 0, so that the axis has to include 0.
    virtual bool standsOnZero() const { return false; }
    /// Draws the marks; the painter is clipped to the plot.
    virtual void draw(QPainter& painter, const PlotCanvas& canvas) const = 0;
};

/// A layer of data sets of one kind.
template <typename DataSet>
class SeriesLayer : public PlotLayer
{
public:
    explicit SeriesLayer(const QList<DataSet>& dataSets)
    {
        for (const DataSet& dataSet : dataSets) {
            m_parts.push_back({dataSet, PlotSeries(dataSet.entries)});
        }
    }
    qsizetype dataSetCount() const override { return std::ssize(m_parts); }
    const ChartDataSet& dataSet(qsizetype position) const override { return part(position).dataSet; }
    const PlotSeries& series(qsizetype position) const override { return part(position).series; }

protected:
    struct Part {
        DataSet dataSet;
        PlotSeries series;
    };
    const Part& part(qsizetype position) const { return m_parts.at(static_cast<std::size_t>(position)); }

private:
    std::vector<Part> m_parts;
};

} // namespace lodestar
