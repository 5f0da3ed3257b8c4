// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotModel.h"

#include <algorithm>

namespace lodestar
{

bool PlotModel::isEmpty() const
{
    return dataExtent().x.isEmpty();
}

PlotExtent PlotModel::dataExtent() const
{
    PlotExtent extent;
    for (const Series& each : allSeries()) {
        extent.x.include(each.series->extent().x);
        extent.y.include(each.series->extent().y);
    }
    return extent;
}

PlotInterval PlotModel::wholeX() const
{
    PlotInterval whole{0, std::max(0.0, static_cast<double>(xVals.size() - 1))};
    whole.include(dataExtent().x);
    double room = whole.length() > 0 ? 0.0 : 0.5;
    if (xAxis.time) {
        room = std::max(0.0, xAxis.time->step - whole.length() / 2); // One sample stands among labelled times too.
    }
    for (const auto& layer : layers) {
        room = std::max(room, layer->sideRoom());
    }
    return {whole.from - room, whole.to + room};
}

std::vector<PlotModel::Series> PlotModel::allSeries() const
{
    std::vector<Series> all;
    for (const auto& layer : layers) {
        for (qsizetype i = 0; i < layer->dataSetCount(); ++i) {
            all.push_back({&layer->dataSet(i), &layer->series(i)});
        }
    }
    return all;
}

std::optional<ChartEntry> PlotModel::entryOf(const Highlight& highlight) const
{
    const std::vector<Series> all = allSeries();
    if (highlight.dataSetIndex < 0 || static_cast<std::size_t>(highlight.dataSetIndex) >= all.size()) {
        return std::nullopt;
    }
    const PlotSeries& series = *all[static_cast<std::size_t>(highlight.dataSetIndex)].series;
    const qsizetype position = series.lowerBound(highlight.xIndex);
    if (position < series.size() && series.at(position).xIndex == highlight.xIndex) {
        return series.at(position);
    }
    return std::nullopt;
}

} // namespace lodestar
