// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotLayout.h"

#include <optional>

namespace lodestar
{

/// Draws a chart with axes: grid, limit lines, layers, labels, legend. The model must outlive the renderer.
class PlotRenderer : public ChartRenderer
{
public:
    explicit PlotRenderer(const PlotModel& model) : m_model(model) {}

    void draw(QPainter& painter, const ChartFrame& frame) const override;
    double preferredHeight(double width, const ChartStyle& style) const override;

    PlotLayout layout(const ChartFrame& frame) const { return layoutPlot(m_model, frame); }
    /// The entry nearest to a point of the plot: among the entries of the nearest x index, the one nearest in height.
    /// Nothing for a point outside the plot.
    std::optional<Highlight> entryAt(const PlotLayout& layout, QPointF position) const;

private:
    void drawGrid(QPainter& painter, const PlotLayout& layout, const ChartStyle& style) const;
    void drawAxes(QPainter& painter, const PlotLayout& layout, const ChartStyle& style) const;
    void drawLayers(QPainter& painter, const PlotLayout& layout, const ChartFrame& frame) const;
    void drawLimitLines(QPainter& painter, const PlotLayout& layout, const ChartStyle& style, bool behindData) const;
    void drawHighlights(QPainter& painter, const PlotLayout& layout, const ChartStyle& style) const;
    void drawNoData(QPainter& painter, const PlotLayout& layout, const ChartStyle& style) const;

    const PlotModel& m_model;
};

} // namespace lodestar
