// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PieChartRenderer.h"
#include "Charts/PieChartView.h"
#include "Charts/PlotChartView.h"
#include "Charts/PlotRenderer.h"

#include <QImage>

#include <ostream>

// So that failures read as colours and texts.
inline void PrintTo(const QColor& color, std::ostream* out)
{
    *out << color.name(QColor::HexArgb).toStdString();
}
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace lodestar::charttest
{

inline const QColor blue(66, 116, 185);
inline const QColor red(227, 34, 38);
inline const QColor green(80, 176, 72);
inline const QColor grey(145, 145, 145);
inline const QColor yellow(255, 200, 29);

/// A pie as the dashboard sets it up, over these counts; labels "state 0", "state 1", …
PieChartModel dashboardPie(const QList<float>& counts);

/// The same without values and legend, so that only slices are drawn.
PieChartModel barePie(const QList<float>& counts);

/// The point at a share of the pie's radius and an angle clockwise from 12 o'clock.
QPointF pointOn(const PieLayout& layout, double share, double angle);

/// A drawn chart on its card, in Lato, 366 × 325 points at two pixels a point unless told otherwise.
struct Drawing {
    Drawing(const ChartRenderer& renderer, const ChartFrame& frame, double pixelRatio);

    /// The colour at a point of the chart.
    QColor at(QPointF point) const;
    /// How many pixels of exactly that colour lie within the rectangle, in points.
    int count(const QColor& color, const QRectF& area) const;

    QImage image;
    double ratio;
};

/// The frame in the face that drawings are made in.
ChartFrame inLato(ChartFrame frame);

struct Picture : Drawing {
    explicit Picture(const PieChartModel& model, const ChartFrame& frame = {QSizeF(366, 325), {}, {}},
                     double pixelRatio = 2);

    using Drawing::at;
    QColor at(double share, double angle) const { return at(pointOn(layout, share, angle)); }

    PieLayout layout;
};

/// The numbers from the first on as labels.
QStringList numbers(qsizetype count, int first = 0);
/// A data set of these values at the x indices 0, 1, …
template <typename Set>
Set dataSet(const QString& label, const QColor& color, const QList<float>& values)
{
    Set set;
    set.label = label;
    set.colors = {color};
    for (const float value : values) {
        set.entries << ChartEntry{value, static_cast<int>(set.entries.size())};
    }
    return set;
}
/// The same as a line without circles.
LineChartDataSet plainLine(const QString& label, const QColor& color, const QList<float>& values);
/// A blue line over these values; labels "0", "1", … set up as the performance screen does it, but for the legend.
void showLine(PlotChartView& view, const QList<float>& values);
/// The settings alone.
void setUpLines(PlotChartView& view);

struct PlotPicture : Drawing {
    explicit PlotPicture(const PlotChartView& view, const ChartFrame& frame = {QSizeF(366, 400), {}, {}},
                         double pixelRatio = 2);

    QPointF point(double index, double value) const
    {
        return {layout.transform.toX(index), layout.transform.toY(value)};
    }
    /// The topmost and lowest point of that colour above or below an x index; an empty rectangle without any.
    QRectF span(const QColor& color, double index) const;

    PlotLayout layout;
};

/// Whether two colours differ by at most a step or two, as rounding allows.
bool near(const QColor& first, const QColor& second, int tolerance = 2);

} // namespace lodestar::charttest
