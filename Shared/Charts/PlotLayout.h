// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotModel.h"

#include <QRectF>

#include <vector>

namespace lodestar
{

/// One label of an axis in place.
struct AxisLabel {
    double at = 0; ///< Value or x index.
    QString text;
    QRectF box;
};

/// A chart with axes in place.
struct PlotLayout {
    LegendLayout legend;
    QRectF content; ///< What the legend leaves.
    PlotTransform transform;
    PlotExtent whole;         ///< Both axes from end to end, zoomed in or not.
    QList<double> valueTicks; ///< What is seen of them.
    QList<double> indexTicks; ///< Those that have a label.
    std::vector<AxisLabel> leftLabels;
    std::vector<AxisLabel> rightLabels;
    std::vector<AxisLabel> topLabels;
    std::vector<AxisLabel> bottomLabels;

    /// Whether there is a plot at all: data and room.
    bool hasPlot() const { return !transform.plot.isEmpty(); }
};

/// The face of axis labels, limit lines and the description.
QFont axisFont(const ChartStyle& style);

PlotLayout layoutPlot(const PlotModel& model, const ChartFrame& frame);

} // namespace lodestar
