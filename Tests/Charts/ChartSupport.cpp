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

Picture::Picture(const PieChartModel& model, ChartFrame frame, double pixelRatio)
    : image((frame.size * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied), ratio(pixelRatio)
{
    image.setDevicePixelRatio(pixelRatio);
    image.fill(frame.style.cardColor);
    frame.style.textFont = QFont(QStringLiteral("Lato"));
    const PieChartRenderer renderer(model);
    layout = renderer.layout(frame);
    QPainter painter(&image);
    renderer.draw(painter, frame);
}

QColor Picture::at(QPointF point) const
{
    return image.pixelColor((point * ratio).toPoint());
}

QColor Picture::at(double share, double angle) const
{
    const double radians = angle * std::numbers::pi / 180;
    return at(layout.center + share * layout.radius * QPointF(std::sin(radians), -std::cos(radians)));
}

int Picture::count(const QColor& color, const QRectF& area) const
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

bool near(const QColor& first, const QColor& second, int tolerance)
{
    return std::abs(first.red() - second.red()) <= tolerance && std::abs(first.green() - second.green()) <= tolerance &&
           std::abs(first.blue() - second.blue()) <= tolerance;
}

} // namespace lodestar::charttest
