// SPDX-License-Identifier: Apache-2.0
#include "ChartSupport.h"

#include <QPainter>

#include <cmath>
#include <numbers>

namespace lodestar::charttest
{

PieChartModel dashboardPie(const QList<float>& counts)
{
    PieChartModel model;
    model.holeRadiusPercent = 0.54;
    model.transparentCircleRadiusPercent = 0.58;
    model.drawSliceText = false;
    model.legend.position = static_cast<LegendPosition>(9);
    model.legend.xEntrySpace = 0.8;
    model.legend.yEntrySpace = 0.8;
    model.legend.yOffset = 18;
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

PieChartModel barePie(const QList<float>& counts)
{
    PieChartModel model = dashboardPie(counts);
    model.legend.enabled = false;
    model.data.dataSet.valueFormatter.multiplier = std::nan("");
    return model;
}

ChartFrame inLato(ChartFrame frame)
{
    frame.style.textFont = QFont(QStringLiteral("Lato"));
    return frame;
}

Drawing::Drawing(const ChartRenderer& renderer, const ChartFrame& frame, double pixelRatio)
    : image((frame.size * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied), ratio(pixelRatio)
{
    image.setDevicePixelRatio(pixelRatio);
    image.fill(frame.style.cardColor);
    QPainter painter(&image);
    renderer.draw(painter, inLato(frame));
}

QColor Drawing::at(QPointF point) const
{
    return image.pixelColor((point * ratio).toPoint());
}

int Drawing::count(const QColor& color, const QRectF& area) const
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

Picture::Picture(const PieChartModel& model, const ChartFrame& frame, double pixelRatio)
    : Drawing(PieChartRenderer(model), frame, pixelRatio), layout(PieChartRenderer(model).layout(inLato(frame)))
{
}

QPointF pointOn(const PieLayout& layout, double share, double angle)
{
    const double radians = angle * std::numbers::pi / 180;
    return layout.center + share * layout.radius * QPointF(std::sin(radians), -std::cos(radians));
}

QStringList numbers(qsizetype count, int first)
{
    QStringList labels;
    for (qsizetype i = 0; i < count; ++i) {
        labels << QString::number(first + i);
    }
    return labels;
}

LineChartDataSet plainLine(const QString& label, const QColor& color, const QList<float>& values)
{
    auto line = dataSet<LineChartDataSet>(label, color, values);
    line.circleRadius = 0;
    return line;
}

void setUpLines(PlotChartView& view)
{
    view.setNoDataText(QStringLiteral("No performance data available."));
    view.setHighlightEnabled(false);
    view.setPinchZoomEnabled(true);
    view.setHighlightIndicatorEnabled(false);
    view.setDrawGridBackgroundEnabled(false);
    XAxis xAxis;
    xAxis.drawGridLinesEnabled = false;
    view.setXAxis(xAxis);
    YAxis leftAxis;
    leftAxis.startAtZeroEnabled = false;
    leftAxis.gridLineDashLengths = {5, 5};
    leftAxis.drawLimitLinesBehindDataEnabled = true;
    view.setLeftAxis(leftAxis);
    YAxis rightAxis;
    rightAxis.enabled = false;
    view.setRightAxis(rightAxis);
    Legend legend = view.legend();
    legend.form = LegendForm::Line;
    view.setLegend(legend);
}

void showLine(PlotChartView& view, const QList<float>& values)
{
    setUpLines(view);
    Legend legend = view.legend();
    legend.enabled = false;
    view.setLegend(legend);
    view.setData({numbers(values.size()), {}, {plainLine(QStringLiteral("line"), blue, values)}});
}

PlotPicture::PlotPicture(const PlotChartView& view, const ChartFrame& frame, double pixelRatio)
    : Drawing(PlotRenderer(view.model()), frame, pixelRatio), layout(PlotRenderer(view.model()).layout(inLato(frame)))
{
}

QRectF PlotPicture::span(const QColor& color, double index) const
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

bool near(const QColor& first, const QColor& second, int tolerance)
{
    return std::abs(first.red() - second.red()) <= tolerance && std::abs(first.green() - second.green()) <= tolerance &&
           std::abs(first.blue() - second.blue()) <= tolerance;
}

} // namespace lodestar::charttest
