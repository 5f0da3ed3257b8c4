// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/LineMask.h"
#include "Charts/PlotLayer.h"

#include <QLineF>
#include <QPolygonF>

#include <vector>

namespace lodestar
{

/// A plot's lines. A line with more entries in view than pixel columns is drawn as the span from the least to the
/// greatest value of every column, which the eye cannot tell from the line itself and which takes the same time for any
/// number of entries; any other line is drawn point by point.
class LineLayer : public PlotLayer
{
public:
    explicit LineLayer(const QList<LineChartDataSet>& dataSets);

    qsizetype dataSetCount() const override { return static_cast<qsizetype>(m_lines.size()); }
    const ChartDataSet& dataSet(qsizetype position) const override;
    const PlotSeries& series(qsizetype position) const override;
    void draw(QPainter& painter, const PlotCanvas& canvas) const override;

private:
    struct Line {
        LineChartDataSet dataSet;
        PlotSeries series;
        // What was drawn last, kept until the zoom, the place or the size changes.
        mutable PlotTransform transform;
        mutable double pixelRatio = 0;
        mutable QPolygonF points;
        mutable QList<QLineF> pieces; ///< From point to point, or across what has no columns.
        mutable std::vector<QRectF> columns;
        mutable LineMask mask; ///< Of the columns.
    };

    static void prepare(const Line& line, const PlotCanvas& canvas);
    static void drawStrokes(QPainter& painter, const Line& line, const QColor& color);
    static void drawCircles(QPainter& painter, const Line& line, const QColor& color, const PlotCanvas& canvas);

    std::vector<Line> m_lines;
};

} // namespace lodestar
