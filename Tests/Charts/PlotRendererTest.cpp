// SPDX-License-Identifier: Apache-2.0
#include "ChartSupport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lodestar::charttest
{
namespace
{

const QColor orange(0xD9, 0x7A, 0x00);
const QColor deepBlue(0x00, 0x30, 0x8B);
const ChartFrame phone{QSizeF(366, 400), {}, {}};

/// The performance screen's three lines of so many samples; the first label is `first`.
PlotChartData samples(int count, int first = 0)
{
    QList<float> used;
    for (int i = 0; i < count; ++i) {
        used << static_cast<float>(6 + 3 * std::sin(i * 6.28 / count) + ((i * 7919) % 13) / 13.0);
    }
    return {numbers(count, first),
            {},
            {plainLine("Total Processors", orange, QList<float>(count, 16)),
             plainLine("Processors Allocated", green, QList<float>(count, 12)),
             plainLine("Processors Used", deepBlue, used)}};
}

BarChartDataSet bars(const QColor& color, const QList<float>& values)
{
    return dataSet<BarChartDataSet>(color.name(), color, values);
}

class PlotRendererTest : public testing::Test
{
protected:
    PlotRendererTest() { setUpLines(view); }

    PlotChartView view;
};

TEST_F(PlotRendererTest, PointsStandWhereTheirIndexAndValueSayDespiteGapsAndForeignIndices)
{
    auto line = plainLine("line", blue, {});
    line.entries = {{10, 12}, {0, 0}, {NAN, 3}, {10, 4}, {5, 8}};
    view.setData({numbers(9), {}, {line}});
    const PlotPicture picture(view);
    EXPECT_EQ(picture.layout.whole.x, (PlotInterval{0, 12})) << "beyond the labels, which end at 8";
    for (const auto& [index, value] : {std::pair(2, 5.0), {4, 10.0}, {6, 7.5}, {8, 5.0}, {10, 7.5}}) {
        EXPECT_NEAR(picture.span(blue, index).center().y(), picture.point(index, value).y(), 1.5) << index;
    }
    // In plain coordinates, lest the probes share a mistake with the renderer: greater is higher, later is further
    // right.
    const QRectF plot = picture.layout.transform.plot;
    const double high = plot.bottom() - plot.height() * 10 / picture.layout.whole.y.to;
    const QPointF peak(plot.left() + plot.width() * 4 / 12, high);
    EXPECT_TRUE(near(picture.at(peak), blue, 40));
    EXPECT_EQ(picture.count(blue, QRectF(plot.left(), peak.y() - 6, plot.width(), 4.5)), 0) << "nothing above";
    EXPECT_EQ(picture.layout.indexLabels.back().text, "8") << "no label where there is none";
}

TEST_F(PlotRendererTest, LabelsStandAtTheirTicksAndNeverOverlapOrLeaveTheChart)
{
    for (const auto& [count, first] : {std::pair(240, 0), {3, 0}, {24000, 0}, {240, 1000000}}) {
        view.setData(samples(count, first));
        for (const double scale : {1.0, 3.0}) {
            for (const PlotViewport seen : {PlotViewport(), {0.31, 0.2, 0.05, 0.1}}) {
                SCOPED_TRACE(testing::Message() << count << " from " << first << " at " << scale);
                view.setViewport(seen);
                ChartFrame frame{QSizeF(336, 320), {}, {}};
                frame.style.textScale = scale;
                const PlotLayout layout = PlotRenderer(view.model()).layout(inLato(frame));
                for (const auto* labels : {&layout.indexLabels, &layout.leftLabels}) {
                    ASSERT_FALSE(labels->empty());
                    QRectF before;
                    for (const AxisLabel& label : *labels) {
                        SCOPED_TRACE(label.text.toStdString());
                        EXPECT_TRUE(QRectF(QPointF(0, 0), frame.size).contains(label.box));
                        EXPECT_FALSE(layout.legend.bounds.intersects(label.box));
                        EXPECT_FALSE(before.adjusted(-2, -2, 2, 2).intersects(label.box));
                        before = label.box;
                    }
                }
                for (const AxisLabel& label : layout.indexLabels) {
                    EXPECT_NEAR(label.box.center().x(), layout.transform.toX(label.at), 24 * scale);
                    EXPECT_EQ(label.text, QString::number(first + label.at, 'f', 0));
                }
            }
        }
    }
}

TEST_F(PlotRendererTest, GridIsDashedFiveOnFiveOffAndMissingWhereSwitchedOff)
{
    showLine(view, {0, 1});
    ChartFrame frame = phone;
    frame.style.gridColor = red;
    const PlotPicture picture(view, frame);
    const QRectF plot = picture.layout.transform.plot;
    const double y = picture.layout.transform.toY(picture.layout.valueTicks.at(3));
    for (double x = plot.left(); x + 10 < plot.right(); x += 10) {
        EXPECT_GT(picture.count(red, QRectF(x + 0.5, y - 1, 4, 2)), 4) << x;
        EXPECT_EQ(picture.count(red, QRectF(x + 5.5, y - 1, 4, 2)), 0) << x;
    }
    YAxis axis = view.leftAxis();
    axis.drawGridLinesEnabled = false;
    view.setLeftAxis(axis);
    EXPECT_EQ(PlotPicture(view, frame).count(red, plot), 0) << "no upright ones either";
}

TEST_F(PlotRendererTest, DenseLinesShowEveryExtreme)
{
    QList<float> values(200000, 5);
    values[66666] = 9;
    values[133332] = 1;
    showLine(view, values);
    const PlotPicture picture(view);
    EXPECT_NEAR(picture.span(blue, 66666).top(), picture.point(0, 9).y(), 1.5) << "one value of 200,000";
    EXPECT_NEAR(picture.span(blue, 133332).bottom(), picture.point(0, 1).y(), 1.5);
    const QRectF level = picture.span(blue, 30000);
    EXPECT_NEAR(level.height(), 1, 0.6) << "and no thicker elsewhere";
    EXPECT_NEAR(level.center().y(), picture.point(0, 5).y(), 0.6);
}

TEST_F(PlotRendererTest, DenseLinesEndWithThePlotOnEveryGridOfPixels)
{
    QList<float> values;
    for (int i = 0; i < 5000; ++i) {
        values << static_cast<float>(i % 7);
    }
    values.last() = 40;
    showLine(view, values);
    for (const double ratio : {1.0, 1.2, 1.5, 3.0}) {
        for (const double width : {366.0, 366.3, 366.7}) {
            SCOPED_TRACE(testing::Message() << ratio << " " << width);
            const PlotPicture picture(view, {QSizeF(width, 400), {}, {}}, ratio);
            const QRectF plot = picture.layout.transform.plot;
            const double start = qRound(plot.left() * ratio) / ratio;
            const double end = qRound(plot.right() * ratio) / ratio;
            EXPECT_EQ(picture.count(blue, QRectF(0, 0, start, 400)), 0);
            EXPECT_EQ(picture.count(blue, QRectF(end, 0, width - end, 400)), 0);
            const QRectF last = picture.span(blue, picture.layout.transform.toIndex(end - 1 / ratio));
            EXPECT_NEAR(last.top(), picture.point(0, 40).y() - 0.5, 1.1 / ratio) << "the last value is seen";
        }
    }
}

TEST_F(PlotRendererTest, AZoomKeepsWithinThePlotAndLinesGoOnAcrossGapsHoweverCloselyTheyAreLookedAt)
{
    QList<float> values(100001, NAN);
    for (int i = 0; i < 40000; ++i) {
        values[i] = 2;
        values[100000 - i] = 6;
    }
    showLine(view, values);
    struct Look {
        PlotViewport seen;
        int index;
        double value;
    };
    // All of it, two indices in the middle of the gap, from before the gap on to an entry out of view, and a line that
    // leaves the view upwards and downwards.
    for (const Look& look : {Look{{}, 45000, 3},
                             {{0.49999, 0, 0.00002, 1}, 50000, 4},
                             {{0.35, 0, 0.1, 1}, 44000, 2.8},
                             {{0.41, 0.4, 0.18, 0.2}, 50000, 4}}) {
        view.setViewport(look.seen);
        const PlotPicture picture(view);
        EXPECT_NEAR(picture.span(blue, look.index).center().y(), picture.point(0, look.value).y(), 1.5) << look.index;
        const QRectF plot = picture.layout.transform.plot.adjusted(-1, -1, 1, 1);
        EXPECT_EQ(picture.count(blue, QRectF({}, phone.size)), picture.count(blue, plot)) << look.index;
    }
}

TEST_F(PlotRendererTest, GrowsInFromTheStart)
{
    showLine(view, {5, 5, 5, 5, 5});
    const PlotPicture half(view, {phone.size, {}, {0.5, 1}});
    const QRectF plot = half.layout.transform.plot;
    EXPECT_GT(half.count(blue, QRectF(plot.left(), 0, plot.width() / 2, 400)), 200);
    EXPECT_EQ(half.count(blue, QRectF(plot.center().x() + 1, 0, plot.width(), 400)), 0);
    EXPECT_EQ(PlotPicture(view, {phone.size, {}, {0, 1}}).count(blue, QRectF(0, 0, 366, 400)), 0);
}

TEST_F(PlotRendererTest, RightToLeftMirrorsTheLegendButNotTheAxesAndTheAppearanceGivesTheSeriesTheirColours)
{
    view.setData(samples(240));
    ChartFrame frame = phone;
    const PlotPicture leftToRight(view, frame);
    frame.style.direction = Qt::RightToLeft;
    frame.style.seriesColors = {red, yellow};
    const PlotPicture picture(view, frame);
    EXPECT_EQ(leftToRight.layout.transform, picture.layout.transform);
    const auto& boxes = picture.layout.legend.boxes;
    EXPECT_GT(boxes.front().form.left(), leftToRight.layout.legend.boxes.front().form.left());
    EXPECT_LT(picture.layout.leftLabels.front().box.right(), picture.layout.transform.plot.left());

    const QRectF plot = picture.layout.transform.plot;
    EXPECT_GT(picture.count(red, plot), 300);
    EXPECT_EQ(picture.count(orange, plot), 0);
    EXPECT_GT(picture.count(deepBlue, plot), 50) << "colours that are not given stay";
    EXPECT_GT(picture.count(red, boxes.front().form), 20);
    EXPECT_GT(picture.count(yellow, boxes.at(1).form), 20);
}

TEST_F(PlotRendererTest, NothingOneValueAndNoRoomAreDrawnAsFarAsTheyGo)
{
    showLine(view, {NAN});
    ChartFrame frame = phone;
    frame.style.textColor = red;
    const PlotPicture nothing(view, frame);
    EXPECT_FALSE(nothing.layout.hasPlot());
    EXPECT_GT(nothing.count(red, QRectF(90, 185, 186, 30)), 60) << "said in the middle";
    EXPECT_EQ(nothing.count(red, QRectF(0, 0, 366, 170)) + nothing.count(red, QRectF(0, 230, 366, 170)), 0);

    showLine(view, {7});
    const PlotPicture one(view);
    EXPECT_NEAR(one.point(0, 7).x(), one.layout.transform.plot.center().x(), 1);
    EXPECT_EQ(one.at(one.point(0, 7)), blue);
    for (const QSizeF size : {QSizeF(1, 1), QSizeF(30, 400), QSizeF(366, 20)}) {
        EXPECT_FALSE(PlotPicture(view, {size, {}, {}}).layout.hasPlot()) << size.width();
    }
}

TEST_F(PlotRendererTest, BarsStandOnZeroSideBySideAndGrowOutOfIt)
{
    view.setData({{"a", "b", "c"}, {bars(blue, {2, -3, 4}), bars(red, {1, 2, 0})}, {}});
    const PlotPicture picture(view);
    EXPECT_EQ(picture.layout.whole.x, (PlotInterval{-0.5, 2.5})) << "room for the outermost bars";
    EXPECT_EQ(picture.at(picture.point(-0.2, 1.5)), blue);
    EXPECT_EQ(picture.at(picture.point(0.2, 0.5)), red) << "the second set is at the right";
    EXPECT_EQ(picture.at(picture.point(0.2, 1.4)), white) << "no higher than its value";
    EXPECT_EQ(picture.at(picture.point(0.8, -2.5)), blue) << "downwards below zero";
    EXPECT_EQ(picture.at(picture.point(0.5, 0.2)), white) << "groups are apart";
    EXPECT_EQ(view.accessibleText(), "#4274b9 4, #e32226 0");

    view.setData({{"a", "b"}, {bars(blue, {100, 101})}, {}});
    const PlotPicture growing(view, {QSizeF(366, 400), {}, {0.5, 1}});
    EXPECT_EQ(growing.layout.whole.y.from, 0) << "whatever the values";
    EXPECT_EQ(growing.at(growing.point(0, 45)), blue);
    EXPECT_EQ(growing.at(growing.point(0, 55)), white) << "half of the bar half way";
}

TEST_F(PlotRendererTest, BarsOfDaysStandAboveAndBelowTheirLineBetweenTheGivenLabels)
{
    PlotChartData data{
        {"11 Feb", "12 Feb", "13 Feb", "today"}, {bars(red, {5, 0, 2, 4}), bars(green, {0, -4, -4, 0})}, {}};
    data.barStyle = {.sharesPlace = true, .share = 0.7, .radius = 2, .gap = 1.25};
    view.setData(data);
    view.setCompact(true);
    Legend legend;
    legend.enabled = false;
    view.setLegend(legend);
    XAxis x;
    x.drawGridLinesEnabled = x.drawAxisLineEnabled = false;
    x.labelledIndices = {0, 1, 3};
    view.setXAxis(x);
    YAxis y;
    y.drawGridLinesEnabled = y.drawAxisLineEnabled = y.drawSignEnabled = false;
    y.drawZeroLineEnabled = true;
    y.labelledValues = {-4, 5};
    view.setLeftAxis(y);
    const ChartFrame card{QSizeF(326, 118), {}, {}};
    const PlotPicture picture(view, card);
    const QRectF plot = picture.layout.transform.plot;
    EXPECT_EQ(plot.left(), 26);
    EXPECT_EQ(plot.right(), 326) << "no room beside it";
    EXPECT_EQ(picture.layout.whole.y, (PlotInterval{-4, 5})) << "it ends at the outermost labels";
    ASSERT_EQ(picture.layout.leftLabels.size(), 2U);
    EXPECT_EQ(picture.layout.leftLabels[0].text, "4") << "without a sign";
    EXPECT_EQ(picture.layout.leftLabels[0].box.left(), 0);
    ASSERT_EQ(picture.layout.indexLabels.size(), 3U);
    EXPECT_GE(picture.layout.indexLabels.front().box.left(), plot.left());
    EXPECT_LE(picture.layout.indexLabels.back().box.right(), plot.right());

    const double line = picture.point(0, 0).y();
    const auto length = [&](const QColor& color, double index) { return picture.span(color, index).height(); };
    EXPECT_NEAR(length(red, 0) / 5, length(red, 3) / 4, 0.3) << "as long as the value says, whatever the gap";
    EXPECT_NEAR(picture.span(red, 2).bottom(), line - 1.25, 0.6);
    EXPECT_NEAR(picture.span(green, 2).top(), line + 1.25, 0.6) << "in the same place";
    EXPECT_EQ(length(red, 1), 0) << "nothing for 0";
    EXPECT_EQ(picture.at({picture.point(0.5, 0).x(), line}), card.style.axisColor) << "the line at 0";
    const auto topOf = [&](double index) { return picture.span(red, index).top(); };
    EXPECT_GT(topOf(-0.34), topOf(0) + 0.4) << "round at its end";
    EXPECT_TRUE(near(picture.at({picture.point(-0.34, 0).x(), line - 2}), red, 12)) << "and square at the line";

    view.setAccessibleText("4 days, today 4 worse");
    EXPECT_EQ(view.accessibleText(), "4 days, today 4 worse");
    view.clear();
    EXPECT_EQ(view.accessibleText(), "No performance data available.");
    y.labelledValues = {0, 3, 6};
    view.setLeftAxis(y);
    x.labelledIndices = {0, 3};
    view.setXAxis(x);
    data.xVals = {"a very long name of a day", "", "", "today"};
    view.setData(data);
    const PlotLayout narrow = PlotRenderer(view.model()).layout(inLato({QSizeF(90, 118), {}, {}}));
    ASSERT_EQ(narrow.indexLabels.size(), 1U);
    EXPECT_EQ(narrow.indexLabels[0].text, "today") << "the last label matters most";
}

TEST_F(PlotRendererTest, LinesStandInFrontOfBarsLimitLinesWhereToldAndTheNearestEntryIsFound)
{
    auto line = dataSet<LineChartDataSet>("line", red, {5, 5});
    line.lineWidth = 3;
    line.circleRadius = 6;
    view.setData({{"a", "b"}, {bars(blue, {8, 8})}, {line}});
    const PlotPicture picture(view);
    EXPECT_EQ(picture.at(picture.point(0.2, 5)), red);
    EXPECT_EQ(picture.at(picture.point(0.2, 4)), blue);
    EXPECT_EQ(picture.at(picture.point(1, 5) + QPointF(4.5, 0)), red) << "the circle at the entry";
    EXPECT_EQ(picture.at(picture.point(1, 5)), white) << "and its hole";
    EXPECT_EQ(picture.layout.legend.boxes.size(), 2U);
    const PlotRenderer renderer(view.model());
    EXPECT_EQ(renderer.entryAt(picture.layout, picture.point(1, 5.5)), (Highlight{1, 1}));
    EXPECT_EQ(renderer.entryAt(picture.layout, picture.point(0, 7.5)), (Highlight{0, 0}));
    EXPECT_EQ(renderer.entryAt(picture.layout, QPointF(2, 2)), std::nullopt);
    YAxis axis = view.leftAxis();
    axis.addLimitLine({4, QString(), green, 2, {}});
    for (const bool behind : {true, false}) {
        axis.drawLimitLinesBehindDataEnabled = behind;
        view.setLeftAxis(axis);
        EXPECT_EQ(PlotPicture(view).at(picture.point(0.2, 4)), behind ? blue : green);
        EXPECT_EQ(PlotPicture(view).at(picture.point(0.5, 4)), green);
    }
}

} // namespace
} // namespace lodestar::charttest
