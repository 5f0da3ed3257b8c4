// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotLayer.h"

#include <QImage>

namespace lodestar
{

/// The lines of a plot. A line with more entries in view than pixel columns is drawn as the span from the least to the
/// greatest value of every column: the eye cannot tell that from the line itself, and the drawing takes the same time
/// for any number of entries. Any other line is drawn point by point. The layer keeps a picture of the lines until they
/// would look different, so that growing in, selecting and limit lines redraw none of them.
class LineLayer : public SeriesLayer<LineChartDataSet>
{
public:
    using SeriesLayer::SeriesLayer;

    void draw(QPainter& painter, const PlotCanvas& canvas) const override;

private:
    /// The lines as last drawn, with everything that their look depends on.
    struct Picture {
        PlotTransform transform;
        double pixelRatio = 0;
        QList<QColor> colors;
        QColor cardColor;
        QPoint position; ///< In device pixels, from the chart's top left.
        QImage image;
    };

    void update(const PlotCanvas& canvas) const;

    mutable Picture m_picture;
};

} // namespace lodestar
