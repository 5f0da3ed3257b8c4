// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PieChartModel.h"
#include "Charts/PieValueText.h"

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <optional>
#include <vector>

namespace lodestar
{

/// A pie after layout. Lengths in points.
struct PieLayout {
    LegendLayout legend;
    QRectF content; ///< The part of the chart that the legend leaves free.
    QPointF center;
    double radius = 0;
    double holeRadius = 0; ///< 0 for no hole.
    double bandRadius = 0; ///< Never below the hole's radius.
    std::vector<PieSlice> slices;
};

/// Draws a pie: a ring of slices, clockwise from 12 o'clock, with see-through gaps of two points; a pale band along the
/// hole; values in the slices that have room for them; a legend. The model must outlive the renderer.
class PieChartRenderer : public ChartRenderer
{
public:
    explicit PieChartRenderer(const PieChartModel& model) : m_model(model) {}

    /// The pie's greatest diameter in points. The pie shrinks to the room that the legend leaves.
    void setMaximumDiameter(double diameter) { m_maximumDiameter = diameter; }

    void draw(QPainter& painter, const ChartFrame& frame) const override;
    double preferredHeight(double width, const ChartStyle& style) const override;

    PieLayout layout(const ChartFrame& frame) const;
    /// The entry whose slice lies at a position of the complete chart. The position is in points from the chart's top
    /// left.
    std::optional<qsizetype> entryAt(const PieLayout& layout, QPointF position) const;
    /// A slice's outline between two radii.
    static QPainterPath slicePath(const PieSlice& slice, double innerRadius, double outerRadius);

private:
    void drawSlices(QPainter& painter, const PieLayout& layout, const ChartStyle& style) const;
    void drawValues(QPainter& painter, const PieLayout& layout, const ChartFrame& frame) const;
    std::vector<PieSlice> slicesOf(const PieLayout& layout, const ChartPhases& phases) const;
    std::vector<LegendItem> legendItems() const;

    const PieChartModel& m_model;
    double m_maximumDiameter = 240;
};

} // namespace lodestar
