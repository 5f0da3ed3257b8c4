// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PieChartRenderer.h"
#include "Charts/PieChartView.h"
#include "Charts/PlotChartView.h"
#include "Charts/PlotRenderer.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <numbers>
#include <ostream>

// So that failures read as colours.
inline void PrintTo(const QColor& color, std::ostream* out)
{
    *out << color.name(QColor::HexArgb).toStdString();
}

namespace lodestar::charttest
{

inline const QColor white = Qt::white;
inline const QColor blue(66, 116, 185);
inline const QColor red(227, 34, 38);
inline const QColor green(80, 176, 72);
inline const QColor grey(145, 145, 145);
inline const QColor yellow(255, 200, 29);

/// Whether two colours differ by at most a step or two, as rounding allows.
inline bool near(const QColor& first, const QColor& second, int tolerance = 2)
{
    return std::abs(first.red() - second.red()) <= tolerance && std::abs(first.green() - second.green()) <= tolerance &&
           std::abs(first.blue() - second.blue()) <= tolerance;
}

/// The frame in the face that drawings are made in.
inline ChartFrame inLato(ChartFrame frame)
{
    frame.style.textFont = QFont(QStringLiteral("Lato"));
    return frame;
}

/// A chart drawn on its card, at two pixels a point unless told otherwise.
template <typename Renderer, typename Model>
struct Drawing {
    explicit Drawing(const Model& model, const ChartFrame& frame, double pixelRatio = 2)
        : layout(Renderer(model).layout(inLato(frame))),
          image((frame.size * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied),
          ratio(pixelRatio)
    {
        image.setDevicePixelRatio(pixelRatio);
        image.fill(frame.style.cardColor);
        QPainter painter(&image);
        Renderer(model).draw(painter, inLato(frame));
    }

    /// The colour at a point of the chart.
    QColor at(QPointF point) const { return image.pixelColor((point * ratio).toPoint()); }
    /// How many pixels of exactly that colour lie within the rectangle, in points.
    int count(const QColor& color, const QRectF& area) const
    {
        const QRect pixels = QRectF(area.topLeft() * ratio, area.size() * ratio).toRect() & image.rect();
        int found = 0;
        for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
            for (int x = pixels.left(); x <= pixels.right(); ++x) {
                found += image.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return found;
    }

    decltype(std::declval<Renderer>().layout({})) layout;
    QImage image;
    double ratio;
};

/// A pie as the dashboard sets it up, over these counts; labels "state 0", "state 1", …
inline PieChartModel dashboardPie(const QList<float>& counts)
{
    PieChartModel model;
    model.holeRadiusPercent = 0.54;
    model.transparentCircleRadiusPercent = 0.58;
    model.drawSliceText = false;
    model.legend = {true, LegendPosition::AboveChartLeft, LegendForm::Square, 0.8, 0.8, 18};
    PieChartDataSet& dataSet = model.data.dataSet;
    for (qsizetype i = 0; i < counts.size(); ++i) {
        model.data.xVals << QStringLiteral("state %1").arg(i);
        dataSet.entries << ChartEntry{counts.at(i), static_cast<int>(i)};
    }
    dataSet.colors = {blue, red, green, grey, yellow};
    dataSet.valueFormatter = {NumberFormatter::Style::Percent, 1, 1.0, QString()};
    dataSet.valueFont = chartFont(QStringLiteral("Nimbus Sans"), 12);
    dataSet.valueTextColor = Qt::white;
    return model;
}

/// The point at a share of the pie's radius and an angle clockwise from 12 o'clock.
inline QPointF pointOn(const PieLayout& layout, double share, double angle)
{
    const double radians = angle * std::numbers::pi / 180;
    return layout.center + share * layout.radius * QPointF(std::sin(radians), -std::cos(radians));
}

struct PiePicture : Drawing<PieChartRenderer, PieChartModel> {
    explicit PiePicture(const PieChartModel& model, const ChartFrame& frame = {QSizeF(366, 325), {}, {}},
                        double pixelRatio = 2)
        : Drawing(model, frame, pixelRatio)
    {
    }
    using Drawing::at;
    QColor at(double share, double angle) const { return at(pointOn(layout, share, angle)); }
};

/// The numbers from the first on as labels.
inline QStringList numbers(qsizetype count, int first = 0)
{
    QStringList labels;
    for (qsizetype i = 0; i < count; ++i) {
        labels << QString::number(first + i);
    }
    return labels;
}

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
inline LineChartDataSet plainLine(const QString& label, const QColor& color, const QList<float>& values)
{
    auto line = dataSet<LineChartDataSet>(label, color, values);
    line.circleRadius = 0;
    return line;
}

/// The settings of the performance screen.
inline void setUpLines(PlotChartView& view)
{
    view.setNoDataText(QStringLiteral("No performance data available."));
    view.setHighlightEnabled(false);
    view.setPinchZoomEnabled(true);
    view.setDrawGridBackgroundEnabled(false);
    XAxis xAxis;
    xAxis.drawGridLinesEnabled = false;
    view.setXAxis(xAxis);
    YAxis leftAxis;
    leftAxis.startAtZeroEnabled = false;
    leftAxis.gridLineDashLengths = {5, 5};
    view.setLeftAxis(leftAxis);
    YAxis rightAxis;
    rightAxis.enabled = false;
    view.setRightAxis(rightAxis);
    Legend legend = view.legend();
    legend.form = LegendForm::Line;
    view.setLegend(legend);
}

/// A blue line over these values; labels "0", "1", … set up as the performance screen does it, but for the legend.
inline void showLine(PlotChartView& view, const QList<float>& values)
{
    setUpLines(view);
    Legend legend = view.legend();
    legend.enabled = false;
    view.setLegend(legend);
    view.setData({numbers(values.size()), {}, {plainLine(QStringLiteral("line"), blue, values)}});
}

struct PlotPicture : Drawing<PlotRenderer, PlotModel> {
    explicit PlotPicture(const PlotChartView& view, const ChartFrame& frame = {QSizeF(366, 400), {}, {}},
                         double pixelRatio = 2)
        : Drawing(view.model(), frame, pixelRatio)
    {
    }
    QPointF point(double index, double value) const
    {
        return {layout.transform.toX(index), layout.transform.toY(value)};
    }
    /// The topmost and lowest point of that colour above or below an x index; an empty rectangle without any.
    QRectF span(const QColor& color, double index) const
    {
        const int x = qRound(layout.transform.toX(index) * ratio);
        int top = -1;
        int bottom = -1;
        for (int y = 0; y < image.height() && x < image.width(); ++y) {
            if (near(image.pixelColor(x, y), color, 12)) {
                top = top < 0 ? y : top;
                bottom = y + 1;
            }
        }
        return top < 0 ? QRectF() : QRectF(x / ratio, top / ratio, 1 / ratio, (bottom - top) / ratio);
    }
};

} // namespace lodestar::charttest
