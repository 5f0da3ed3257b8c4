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

/// Everything that a chart with axes is drawn from: its settings, layers, highlights, which count data sets through all
/// layers, and what is seen of it.
struct PlotModel : ChartModel {
    QString noDataText;                    ///< Instead of the plot while there is nothing to chart.
    bool highlightEnabled = true;          ///< Taps select the nearest entry.
    bool dragEnabled = true;               ///< A zoomed plot is moved by the finger.
    bool scaleEnabled = true;              ///< The plot can be zoomed.
    bool pinchZoomEnabled = false;         ///< Two fingers zoom both axes alike; otherwise the one they lie along.
    bool highlightIndicatorEnabled = true; ///< Lines through the highlighted entry.
    bool drawGridBackgroundEnabled = true; ///< The plot stands on a tint of its own.
    XAxis xAxis;
    YAxis leftAxis;
    YAxis rightAxis;
    QStringList xVals;
    std::vector<std::shared_ptr<const PlotLayer>> layers;
    PlotViewport viewport;

    /// Whether no layer has an entry to chart.
    bool isEmpty() const;
    /// The entries of all layers.
    PlotExtent dataExtent() const;
    /// All of the x axis: every label, every entry, and the room that bars take; never of length 0.
    PlotInterval wholeX() const;

    /// A data set by its number through all layers.
    struct Series {
        const ChartDataSet* dataSet;
        const PlotSeries* series;
        const PlotLayer* layer;
        qsizetype position; ///< Within the layer.
    };
    std::vector<Series> allSeries() const;
    /// The entry that a highlight names; nothing when there is none.
    std::optional<ChartEntry> entryOf(const Highlight& highlight) const;
};

} // namespace lodestar
