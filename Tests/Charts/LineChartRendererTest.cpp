// SPDX-License-Identifier: Apache-2.0
#include "ChartSupport.h"

#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>

namespace lodestar::charttest
{
namespace
{

const QColor orange(0xD9, 0x7A, 0x00);
const QColor deepBlue(0x00, 0x30, 0x8B);
const ChartFrame phone{QSizeF(366, 400), {}, {}};

/// The performance screen's three lines of so many samples.
LineChartData samples(int count)
{
    LineChartData data;
    const QList<QColor> colors{orange, green, deepBlue};
    for (int series = 0; series < 3; ++series) {
        LineChartDataSet line;
        line.label = QStringList{"Total Processors", "Processors Allocated", "Processors Used"}.at(series);
        line.colors = {colors.at(series)};
        line.circleRadius = 0;
        for (int i = 0; i < count; ++i) {
            const double wave = 6 + 3 * std::sin(i * 6.28 / count) + ((i * 7919) % 13) / 13.0;
            line.entries << ChartEntry{static_cast<float>(series == 0 ? 16 : series == 1 ? 12 : wave), i};
        }
        data.dataSets << line;
    }
    for (int i = 0; i < count; ++i) {
        data.xVals << QString::number(i);
    }
    return data;
}

TEST(LineChartRendererTest, PointsStandWhereTheirIndexAndValueSay)
{
    LineChartView view;
    showLine(view, {0, 10, 0, 10, 0});
    const PlotPicture picture(view);
    const QRectF plot = picture.layout.transform.plot;
    // In plain coordinates, lest the probe share a mistake with the renderer: greater is higher, later is further
    // right.
    const double high = plot.bottom() - plot.height() * 10 / picture.layout.whole.y.to;
    for (const double index : {1.0, 3.0}) {
        const QPointF peak(plot.left() + plot.width() * index / 4, high);
        EXPECT_TRUE(near(picture.at(peak + QPointF(0, 1)), blue, 40)) << index;
        EXPECT_EQ(picture.count(blue, QRectF(plot.left(), peak.y() - 6, plot.width(), 4.5)), 0) << "nothing above";
    }
    const QPointF halfway(plot.left() + plot.width() / 8, (plot.bottom() + high) / 2);
    EXPECT_TRUE(near(picture.at(halfway), blue, 60)) << "joined by straight lines";
    EXPECT_EQ(picture.at(halfway + QPointF(0, 12)), QColor(Qt::white));
}

TEST(LineChartRendererTest, GapsUnorderedAndForeignIndicesKeepTheirPlaces)
{
    LineChartView view;
    showLine(view, {0, 0, 0, 0, 0, 0, 0, 0, 0});
    LineChartData data = view.data();
    data.dataSets[0].entries = {{10, 12}, {0, 0}, {NAN, 3}, {10, 4}, {5, 8}};
    view.setData(data);
    const PlotPicture picture(view);
    EXPECT_EQ(picture.layout.whole.x, (PlotInterval{0, 12})) << "beyond the labels, which end at 8";
    for (const auto& [index, value] : {std::pair(2, 5.0), {4, 10.0}, {6, 7.5}, {8, 5.0}, {10, 7.5}}) {
        EXPECT_NEAR(picture.span(blue, index).center().y(), picture.point(index, value).y(), 1.5) << index;
    }
    EXPECT_EQ(picture.layout.bottomLabels.back().text, "8") << "no label where there is none";
}

TEST(LineChartRendererTest, LabelsStandAtTheirTicksAndNeverOverlapOrLeaveTheChart)
{
    LineChartView view;
    setUpLines(view);
    for (const auto& [count, first] : {std::pair(240, 0), {3, 0}, {24000, 0}, {240, 1000000}}) {
        LineChartData data = samples(count);
        for (int i = 0; i < count; ++i) {
            data.xVals[i] = QString::number(first + i);
        }
        view.setData(data);
        for (const QSizeF size : {QSizeF(336, 320), QSizeF(366, 400), QSizeF(720, 640)}) {
            for (const double scale : {1.0, 2.0, 3.0}) {
                for (const PlotViewport seen : {PlotViewport(), {0.31, 0.2, 0.05, 0.1}}) {
                    view.setViewport(seen);
                    ChartFrame frame{size, {}, {}};
                    frame.style.textScale = scale;
                    const PlotLayout layout = PlotRenderer(view.model()).layout(inLato(frame));
                    const QRectF chart(QPointF(0, 0), size);
                    for (const auto* labels : {&layout.bottomLabels, &layout.leftLabels}) {
                        ASSERT_FALSE(labels->empty()) << count << " " << size.width() << " " << scale;
                        const AxisLabel* before = nullptr;
                        for (const AxisLabel& label : *labels) {
                            EXPECT_TRUE(chart.contains(label.box)) << label.text.toStdString();
                            EXPECT_FALSE(layout.legend.bounds.intersects(label.box));
                            if (before != nullptr) {
                                EXPECT_FALSE(before->box.adjusted(-2, -2, 2, 2).intersects(label.box))
                                    << before->text.toStdString() << " and " << label.text.toStdString();
                            }
                            before = &label;
                        }
                    }
                    for (const AxisLabel& label : layout.bottomLabels) {
                        EXPECT_NEAR(label.box.center().x(), layout.transform.toX(label.at), 24 * scale);
                        EXPECT_EQ(label.text, data.xVals.at(static_cast<qsizetype>(label.at)));
                    }
                }
            }
        }
    }
}
TEST(LineChartRendererTest, GridIsDashedFiveOnFiveOffAndMissingWhereSwitchedOff)
{
    LineChartView view;
    showLine(view, {0, 1});
    LineChartData data = view.data();
    data.dataSets[0].lineWidth = 0;
    view.setData(data);
    ChartFrame frame = phone;
    frame.style.gridColor = red;
    const PlotPicture picture(view, frame);
    const QRectF plot = picture.layout.transform.plot;
    const double y = picture.layout.transform.toY(picture.layout.valueTicks.at(3));
    QList<double> lengths;
    bool on = false;
    for (double x = plot.left() + 2; x < plot.right() - 6; x += 0.5) {
        const bool ink = picture.count(red, QRectF(x, y - 1, 0.5, 2)) > 0;
        if (lengths.isEmpty() || ink != on) {
            lengths << 0;
            on = ink;
        }
        lengths.last() += 0.5;
    }
    ASSERT_GT(lengths.size(), 20);
    for (qsizetype i = 1; i + 1 < lengths.size(); ++i) {
        EXPECT_NEAR(lengths.at(i), 5, 0.6) << i;
    }
    YAxis axis = view.leftAxis();
    axis.drawGridLinesEnabled = false;
    view.setLeftAxis(axis);
    EXPECT_EQ(PlotPicture(view, frame).count(red, plot), 0) << "no upright ones either";
}

TEST(LineChartRendererTest, LimitLinesStandBehindOrInFrontOfTheData)
{
    LineChartView view;
    showLine(view, {5, 5, 9});
    LineChartData data = view.data();
    data.dataSets[0].lineWidth = 6;
    view.setData(data);
    YAxis axis = view.leftAxis();
    axis.addLimitLine({5, QString(), red, 2, {}});
    view.setLeftAxis(axis);
    EXPECT_EQ(PlotPicture(view).at(PlotPicture(view).point(0.5, 5)), blue);
    axis.drawLimitLinesBehindDataEnabled = false;
    view.setLeftAxis(axis);
    EXPECT_EQ(PlotPicture(view).at(PlotPicture(view).point(0.5, 5)), red);
    axis.removeAllLimitLines();
    view.setLeftAxis(axis);
    EXPECT_EQ(PlotPicture(view).at(PlotPicture(view).point(0.5, 5)), blue);
}

TEST(LineChartRendererTest, DenseLinesShowEveryExtreme)
{
    QList<float> values(200000, 5);
    values[66666] = 9;
    values[133332] = 1;
    LineChartView view;
    showLine(view, values);
    const PlotPicture picture(view);
    EXPECT_NEAR(picture.span(blue, 66666).top(), picture.point(0, 9).y(), 1.5) << "one value of 200,000";
    EXPECT_NEAR(picture.span(blue, 133332).bottom(), picture.point(0, 1).y(), 1.5);
    const QRectF level = picture.span(blue, 30000);
    EXPECT_NEAR(level.height(), 1, 0.6) << "and no thicker elsewhere";
    EXPECT_NEAR(level.center().y(), picture.point(0, 5).y(), 0.6);
}

TEST(LineChartRendererTest, DenseLinesEndWithThePlotOnEveryGridOfPixels)
{
    QList<float> values;
    for (int i = 0; i < 5000; ++i) {
        values << static_cast<float>(i % 7);
    }
    values.last() = 40;
    LineChartView view;
    showLine(view, values);
    for (const double ratio : {1.0, 1.2, 1.5, 2.0, 3.0}) {
        for (const double width : {366.0, 366.3, 366.7}) {
            const PlotPicture picture(view, {QSizeF(width, 400), {}, {}}, ratio);
            const QRectF plot = picture.layout.transform.plot;
            const double start = qRound(plot.left() * ratio) / ratio;
            const double end = qRound(plot.right() * ratio) / ratio;
            EXPECT_EQ(picture.count(blue, QRectF(0, 0, start, 400)), 0) << ratio << " " << width;
            EXPECT_EQ(picture.count(blue, QRectF(end, 0, width - end, 400)), 0) << ratio << " " << width;
            const QRectF last = picture.span(blue, picture.layout.transform.toIndex(end - 1 / ratio));
            EXPECT_NEAR(last.top(), picture.point(0, 40).y() - 0.5, 1.1 / ratio) << "the last value is seen";
        }
    }
}

TEST(LineChartRendererTest, LinesGoOnAcrossGapsHoweverCloselyTheyAreLookedAt)
{
    QList<float> values(100001, NAN);
    for (int i = 0; i < 40000; ++i) {
        values[i] = 2;
        values[100000 - i] = 6;
    }
    LineChartView view;
    showLine(view, values);
    const PlotPicture whole(view);
    EXPECT_NEAR(whole.span(blue, 50000).center().y(), whole.point(0, 4).y(), 1.5);
    EXPECT_NEAR(whole.span(blue, 45000).center().y(), whole.point(0, 3).y(), 1.5);
    view.setViewport({0.5 - 0.00001, 0, 0.00002, 1});
    const PlotPicture close(view);
    ASSERT_NEAR(close.layout.transform.visible.x.length(), 2, 0.01);
    EXPECT_NEAR(close.span(blue, 50000).center().y(), close.point(0, 4).y(), 1.5);
    view.setViewport({0.35, 0, 0.1, 1});
    const PlotPicture edge(view);
    EXPECT_NEAR(edge.span(blue, 44000).center().y(), edge.point(0, 2.8).y(), 1.5) << "on to an entry out of view";
}
TEST(LineChartRendererTest, AZoomShowsItsPartAndKeepsWithinThePlot)
{
    LineChartView view;
    showLine(view, {0, 10, 0, 10, 0, 10, 0, 10, 0});
    view.setViewport({0.5, 0, 0.25, 1});
    const PlotPicture picture(view);
    const QRectF plot = picture.layout.transform.plot;
    EXPECT_EQ(picture.layout.transform.visible.x, (PlotInterval{4, 6}));
    EXPECT_NEAR(picture.span(blue, 5).top(), picture.point(5, 10).y(), 2);
    EXPECT_NEAR(picture.span(blue, 4.5).center().y(), picture.point(4.5, 5).y(), 2);
    EXPECT_EQ(picture.count(blue, QRectF(0, 0, plot.left() - 1, 400)), 0);
    EXPECT_EQ(picture.count(blue, QRectF(plot.right() + 1, 0, 100, 400)), 0);
    view.setViewport({0, 0.5, 1, 0.25});
    EXPECT_EQ(PlotPicture(view).count(blue, QRectF(0, plot.bottom() + 1, 366, 100)), 0);
}

TEST(LineChartRendererTest, GrowsInFromTheStart)
{
    LineChartView view;
    showLine(view, {5, 5, 5, 5, 5});
    ChartFrame frame = phone;
    frame.phases = {0.5, 1};
    const PlotPicture half(view, frame);
    const QRectF plot = half.layout.transform.plot;
    EXPECT_GT(half.count(blue, QRectF(plot.left(), 0, plot.width() / 2, 400)), 200);
    EXPECT_EQ(half.count(blue, QRectF(plot.center().x() + 1, 0, plot.width(), 400)), 0);
    frame.phases = {0, 1};
    EXPECT_EQ(PlotPicture(view, frame).count(blue, QRectF(0, 0, 366, 400)), 0);
}

TEST(LineChartRendererTest, RightToLeftMirrorsTheLegendButNotTheAxes)
{
    LineChartView view;
    setUpLines(view);
    view.setData(samples(240));
    ChartFrame frame = phone;
    const PlotPicture leftToRight(view, frame);
    frame.style.direction = Qt::RightToLeft;
    const PlotPicture rightToLeft(view, frame);
    EXPECT_EQ(leftToRight.layout.transform, rightToLeft.layout.transform);
    EXPECT_GT(rightToLeft.layout.legend.boxes.front().form.left(), leftToRight.layout.legend.boxes.front().form.left());
    EXPECT_LT(rightToLeft.layout.leftLabels.front().box.right(), rightToLeft.layout.transform.plot.left());
}

TEST(LineChartRendererTest, SeriesTakeTheAppearancesColoursInLinesAndLegend)
{
    LineChartView view;
    setUpLines(view);
    view.setData(samples(240));
    ChartFrame frame = phone;
    frame.style.seriesColors = {red, yellow};
    const PlotPicture picture(view, frame);
    const QRectF plot = picture.layout.transform.plot;
    EXPECT_GT(picture.count(red, plot), 300);
    EXPECT_EQ(picture.count(orange, plot), 0);
    EXPECT_GT(picture.count(deepBlue, plot), 50) << "colours that are not given stay";
    EXPECT_GT(picture.count(red, picture.layout.legend.boxes.front().form), 20);
    EXPECT_GT(picture.count(yellow, picture.layout.legend.boxes.at(1).form), 20);
}

TEST(LineChartRendererTest, NothingToChartIsSaidInTheMiddle)
{
    LineChartView view;
    showLine(view, {NAN});
    ChartFrame frame = phone;
    frame.style.textColor = red;
    const PlotPicture picture(view, frame);
    EXPECT_FALSE(picture.layout.hasPlot());
    EXPECT_GT(picture.count(red, QRectF(90, 185, 186, 30)), 60);
    EXPECT_EQ(picture.count(red, QRectF(0, 0, 366, 170)) + picture.count(red, QRectF(0, 230, 366, 170)), 0);
}

TEST(LineChartRendererTest, OneValueAndNoRoomAreDrawnAsFarAsTheyGo)
{
    LineChartView view;
    showLine(view, {7});
    const PlotPicture one(view);
    const QPointF middle = one.layout.transform.plot.center();
    EXPECT_NEAR(one.point(0, 7).x(), middle.x(), 1);
    EXPECT_EQ(one.at(one.point(0, 7)), blue);
    for (const QSizeF size : {QSizeF(), QSizeF(1, 1), QSizeF(30, 400), QSizeF(366, 20)}) {
        ChartFrame frame = phone;
        frame.size = size;
        EXPECT_FALSE(PlotRenderer(view.model()).layout(inLato(frame)).hasPlot()) << size.width();
        QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        PlotRenderer(view.model()).draw(painter, frame);
    }
}

} // namespace
} // namespace lodestar::charttest
