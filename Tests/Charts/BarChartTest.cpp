// SPDX-License-Identifier: Apache-2.0
#include "ChartSupport.h"
#include "Charts/BarChartView.h"
#include "Charts/CombinedChartView.h"

#include <gtest/gtest.h>

namespace lodestar::charttest
{
namespace
{

BarChartDataSet bars(const QColor& color, const QList<float>& values)
{
    BarChartDataSet set;
    set.label = color.name();
    set.colors = {color};
    for (qsizetype i = 0; i < values.size(); ++i) {
        set.entries << ChartEntry{values.at(i), static_cast<int>(i)};
    }
    return set;
}

TEST(BarChartTest, BarsStandOnZeroSideBySideAtTheirIndex)
{
    BarChartView view;
    setUpLines(view);
    view.setData({{"a", "b", "c"}, {bars(blue, {2, -3, 4}), bars(red, {1, 2, 0})}});
    const PlotPicture picture(view);
    EXPECT_EQ(picture.layout.whole.x, (PlotInterval{-0.5, 2.5})) << "room for the outermost bars";
    EXPECT_EQ(picture.at(picture.point(-0.2, 1.5)), blue);
    EXPECT_EQ(picture.at(picture.point(0.2, 0.5)), red) << "the second set is at the right";
    EXPECT_EQ(picture.at(picture.point(0.2, 1.4)), QColor(Qt::white)) << "no higher than its value";
    EXPECT_EQ(picture.at(picture.point(0.8, -2.5)), blue) << "downwards below zero";
    EXPECT_EQ(picture.at(picture.point(0.8, 0.4)), QColor(Qt::white));
    EXPECT_EQ(picture.at(picture.point(0.5, 0.2)), QColor(Qt::white)) << "groups are apart";
    EXPECT_NEAR(picture.span(blue, 1.8).top(), picture.point(0, 4).y(), 1);
    EXPECT_EQ(view.accessibleText(), "#4274b9 4, #e32226 0");
}

TEST(BarChartTest, ZeroIsOnTheAxisWhateverTheValues)
{
    BarChartView view;
    setUpLines(view);
    view.setData({{"a", "b"}, {bars(blue, {100, 101})}});
    EXPECT_EQ(PlotPicture(view).layout.whole.y.from, 0);
    ChartFrame frame{QSizeF(366, 400), {}, {0.5, 1}};
    const PlotPicture growing(view, frame);
    EXPECT_EQ(growing.at(growing.point(0, 45)), blue);
    EXPECT_EQ(growing.at(growing.point(0, 55)), QColor(Qt::white)) << "half of the bar half way";
}

TEST(BarChartTest, LinesOfACombinedChartStandInFrontOfItsBars)
{
    CombinedChartView view;
    setUpLines(view);
    LineChartDataSet line;
    line.label = "line";
    line.colors = {red};
    line.lineWidth = 3;
    line.circleRadius = 6;
    line.entries = {{5, 0}, {5, 1}};
    view.setData({{"a", "b"}, {bars(blue, {8, 8})}, {line}});
    const PlotPicture picture(view);
    EXPECT_EQ(picture.at(picture.point(0.2, 5)), red);
    EXPECT_EQ(picture.at(picture.point(0.2, 4)), blue);
    EXPECT_EQ(picture.at(picture.point(1, 5) + QPointF(4.5, 0)), red) << "the circle at the entry";
    EXPECT_EQ(picture.at(picture.point(1, 5)), QColor(Qt::white)) << "and its hole";
    EXPECT_EQ(picture.layout.legend.boxes.size(), 2U);
    EXPECT_EQ(PlotRenderer(view.model()).entryAt(picture.layout, picture.point(1, 5.5)), (Highlight{1, 1}));
    EXPECT_EQ(PlotRenderer(view.model()).entryAt(picture.layout, picture.point(0, 7.5)), (Highlight{0, 0}));
    EXPECT_EQ(PlotRenderer(view.model()).entryAt(picture.layout, QPointF(2, 2)), std::nullopt);
}

} // namespace
} // namespace lodestar::charttest
