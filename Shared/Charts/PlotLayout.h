// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotModel.h"

#include <QRectF>

#include <vector>

namespace lodestar
{

/// One axis label after layout.
struct AxisLabel {
    double at = 0; ///< Value or x index.
    QString text;
    QRectF box;
};

/// A chart with axes after layout.
struct PlotLayout {
    LegendLayout legend;
    QRectF content; ///< The part of the chart that the legend leaves free.
    PlotTransform transform;
    PlotExtent whole;         ///< Both axes from end to end, zoomed in or not.
    QList<double> valueTicks; ///< Value ticks within view.
    std::vector<AxisLabel> leftLabels;
    std::vector<AxisLabel> rightLabels;
    std::vector<AxisLabel> indexLabels;

    /// Whether there are data and room for a plot.
    bool hasPlot() const { return !transform.plot.isEmpty(); }
};

/// The font of axis labels, limit lines and the description.
QFont axisFont(const ChartStyle& style);

PlotLayout layoutPlot(const PlotModel& model, const ChartFrame& frame);

} // namespace lodestar
