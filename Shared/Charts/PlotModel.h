// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartAxis.h"
#include "Charts/ChartModel.h"
#include "Charts/PlotLayer.h"

#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace lodestar
{

/// Everything that a chart with axes is drawn from: settings, layers, highlights and viewport. Highlights count data
/// sets through all layers.
struct PlotModel : ChartModel {
    QString noDataText;            ///< Shown in place of the plot while there is nothing to chart.
    bool highlightEnabled = true;  ///< Taps select the nearest entry.
    bool dragEnabled = true;       ///< A finger moves a zoomed plot.
    bool scaleEnabled = true;      ///< The plot can be zoomed.
    bool pinchZoomEnabled = false; ///< Two fingers zoom both axes alike; otherwise only the axis that they lie along.
    bool highlightIndicatorEnabled = true; ///< Lines cross at the highlighted entry.
    bool drawGridBackgroundEnabled = true; ///< The plot's ground has a tint.
    bool compact = false; ///< The plot takes the whole chart but for its labels, which begin at the chart's edge.
    XAxis xAxis;
    YAxis leftAxis;
    YAxis rightAxis;
    QStringList xVals;
    std::vector<std::shared_ptr<const PlotLayer>> layers;
    PlotViewport viewport;

    /// Whether no layer has an entry to chart.
    bool isEmpty() const;
    /// The extent of the entries of all layers.
    PlotExtent dataExtent() const;
    /// The whole x axis: every label, every entry, and the room that bars take. Its length is never 0.
    PlotInterval wholeX() const;

    /// A data set, found by its number through all layers.
    struct Series {
        const ChartDataSet* dataSet;
        const PlotSeries* series;
    };
    std::vector<Series> allSeries() const;
    /// The entry that a highlight names; nothing when no such entry exists.
    std::optional<ChartEntry> entryOf(const Highlight& highlight) const;
};

} // namespace lodestar
