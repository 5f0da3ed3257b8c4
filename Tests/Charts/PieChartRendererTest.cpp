// SPDX-License-Identifier: Apache-2.0

#include "ChartSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lodestar::charttest
{
namespace
{

const QColor white = Qt::white;
const QRectF everywhere(0, 0, 366, 325);
const ChartFrame phone{QSizeF(366, 325), {}, {}};

TEST(PieChartRendererTest, SlicesRunClockwiseFromTwelveOClockAndTurnWithThePie)
{
    PieChartModel model = barePie({2, 1, 1});
    const Picture pie(model);
    const std::pair<double, QColor> probes[] = {{5, blue},  {175, blue},  {185, red},
                                                {265, red}, {275, green}, {355, green}};
    for (const auto& [angle, color] : probes) {
        EXPECT_EQ(pie.at(0.8, angle), color) << angle;
    }
    // The same in plain coordinates, lest the probe share a mistake with the renderer.
    EXPECT_EQ(pie.at(pie.layout.center + QPointF(100, 0)), blue);
    EXPECT_EQ(pie.at(pie.layout.center + QPointF(-70, 70)), red);
    for (const double turn : {90.0, -270.0, 450.0}) {
        model.rotationAngle = turn;
        EXPECT_EQ(Picture(model).at(0.8, 100), blue) << turn;
        EXPECT_EQ(Picture(model).at(0.8, 80), green) << turn;
    }
}

TEST(PieChartRendererTest, RingHoleAndBandHaveTheirRadiiAndSlicesAGapOfTwoPoints)
{
    PieChartModel model = barePie({1, 1});
    const Picture pie(model, phone, 4);
    EXPECT_EQ(pie.layout.radius, 119) << "a box of 240";
    const QColor pale(66 + qRound(0.42 * 189), 116 + qRound(0.42 * 139), 185 + qRound(0.42 * 70));
    EXPECT_EQ(pie.at(0.985, 90), blue);
    EXPECT_EQ(pie.at(1.02, 90), white);
    EXPECT_EQ(pie.at(0.6, 90), blue);
    EXPECT_TRUE(near(pie.at(0.56, 90), pale)) << pie.at(0.56, 90).name().toStdString();
    EXPECT_EQ(pie.at(0.52, 90), white);
    for (const double share : {0.6, 0.95}) {
        const QPointF top = pointOn(pie.layout, share, 0);
        EXPECT_EQ(pie.at(top + QPointF(-0.5, 0)), white) << share;
        EXPECT_EQ(pie.at(top + QPointF(0.5, 0)), white) << share;
        EXPECT_EQ(pie.at(top + QPointF(1.5, 0)), blue) << share;
        EXPECT_EQ(pie.at(top + QPointF(-1.5, 0)), red) << share;
    }
    // The hole is seen through unless it is filled or there is none.
    ChartFrame night = phone;
    night.style.cardColor = Qt::transparent;
    EXPECT_EQ(Picture(model, night).at(0.2, 90).alpha(), 0);
    model.holeTransparent = false;
    night.style.cardColor = grey;
    EXPECT_EQ(Picture(model, night).at(0.2, 90), grey);
    model.drawHole = false;
    EXPECT_EQ(Picture(model).at(0.3, 90), blue);
    EXPECT_EQ(Picture(model).at(0.56, 90), blue) << "no hole, no band";
}

TEST(PieChartRendererTest, AnyCountsMakeAPie)
{
    const float infinity = std::numeric_limits<float>::infinity();
    for (const QList<float>& counts : {QList<float>{}, QList<float>{0, 0}, QList<float>{-3, std::nanf(""), infinity}}) {
        const Picture pie(barePie(counts));
        EXPECT_TRUE(pie.layout.slices.empty());
        EXPECT_EQ(pie.count(white, everywhere), 732 * 650);
    }
    const Picture bad(barePie({1, -100, std::nanf(""), 1}));
    ASSERT_EQ(bad.layout.slices.size(), 2U);
    EXPECT_EQ(bad.at(0.8, 90), blue);
    EXPECT_EQ(bad.at(0.8, 270), grey) << "colours keep to their positions";
    const Picture one(barePie({0, 7, 0}));
    for (int angle = 0; angle < 360; angle += 5) {
        EXPECT_EQ(one.at(0.8, angle), red) << "one state is a full ring, " << angle;
    }
    const Picture many(barePie(QList<float>(360, 1.0F)));
    ASSERT_EQ(many.layout.slices.size(), 360U);
    double end = 0;
    for (const PieSlice& slice : many.layout.slices) {
        EXPECT_NEAR(slice.start, end, 1e-6);
        EXPECT_LE(2 * slice.gap, slice.sweep / 2 * M_PI / 180 * many.layout.radius) << "half a slice remains";
        end = slice.start + slice.sweep;
    }
    // Settings that make no sense, and charts too small for a pie, leave the program standing.
    PieChartModel odd = dashboardPie({3, 2});
    odd.holeRadiusPercent = std::nan("");
    odd.transparentCircleRadiusPercent = 40;
    odd.rotationAngle = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Picture(odd).at(1.1, 90), white);
    EXPECT_TRUE(Picture(odd, {QSizeF(30, 20), {}, {}}).layout.slices.empty());
}

/// How many pixels differ from the slice around the middle of its value.
int inkAround(const Picture& pie, double angle, const QColor& slice)
{
    const QRectF area(pointOn(pie.layout, 0.79, angle) - QPointF(7, 6), QSizeF(14, 12));
    return qRound(area.width() * area.height() * pie.ratio * pie.ratio) - pie.count(slice, area);
}

TEST(PieChartRendererTest, ValuesStandInTheirSlicesOnAGroundThatTheyReadOn)
{
    const Picture pie(dashboardPie({3, 3, 3}));
    EXPECT_GT(inkAround(pie, 60, blue), 50);
    EXPECT_GT(inkAround(pie, 180, red), 50);
    EXPECT_GT(inkAround(pie, 300, green), 50);
    // Beside the digit, still on its ground, and beyond that.
    const auto beside = [&](double angle, double by) {
        return pie.at(pointOn(pie.layout, 0.79, angle) + QPointF(by, 0));
    };
    EXPECT_GE(contrastRatio(white, beside(300, 5)), 4.4) << "white does not read on plain green";
    EXPECT_NEAR(beside(300, 5).hslHueF(), green.hslHueF(), 0.02);
    EXPECT_EQ(beside(300, 10), green);
    EXPECT_EQ(beside(60, 5), blue) << "white reads on blue";
}

TEST(PieChartRendererTest, ValuesWithoutRoomAreMadeSmallerOrLeftOff)
{
    const Picture pie(dashboardPie({2000, 1}));
    EXPECT_EQ(pie.count(white, QRectF(pie.layout.center + QPointF(-116, -8), QSizeF(45, 16))), 0)
        << "the left of the ring is plain";
    EXPECT_GT(inkAround(pie, 180, blue), 50);
    const PieValueText text(chartFont("Nimbus Sans", 12), white);
    PieSlice slice{0, 350, 8, 1, {0, 0}};
    const auto narrow = text.place({"3"}, slice, 69, 119);
    ASSERT_TRUE(narrow);
    EXPECT_LT(std::hypot(narrow->middle.x(), narrow->middle.y()), 119);
    EXPECT_EQ(narrow->font.pixelSize(), 12);
    const auto wide = text.place({"33"}, slice, 69, 119);
    ASSERT_TRUE(wide);
    EXPECT_LT(wide->font.pixelSize(), 12);
    slice.sweep = 3;
    EXPECT_FALSE(text.place({"3"}, slice, 69, 119));
}

TEST(PieChartRendererTest, PercentModeShowsShares)
{
    PieChartModel model = dashboardPie({3, 1});
    model.usePercentValues = true;
    EXPECT_EQ(model.valueText({3, 0}), "75");
    model.data.dataSet.entries.clear();
    EXPECT_EQ(model.valueText({0, 0}), "0") << "no share of nothing";
}

TEST(PieChartRendererTest, GrowsInBySweepAndRadius)
{
    const auto grown = [](double x, double y) { return Picture(barePie({1, 1}), {QSizeF(366, 325), {}, {x, y}}); };
    EXPECT_EQ(grown(0, 0).count(white, everywhere), 732 * 650) << "nothing yet";
    const Picture half = grown(0.5, 0.5);
    EXPECT_LT(half.layout.radius, 119);
    EXPECT_EQ(half.at(0.8, 45), blue);
    EXPECT_EQ(half.at(0.8, 135), red);
    EXPECT_EQ(half.at(0.8, 270), white);
    const Picture over = grown(1.1, 1.1);
    EXPECT_GT(over.layout.radius, 119);
    EXPECT_EQ(over.at(0.8, 5), blue) << "the overshoot does not run over the first slice";
}

TEST(PieChartRendererTest, HitsFollowTheSlicesAsTheyTurnAndAHighlightedOneStandsOut)
{
    PieChartModel model = dashboardPie({2, 1, 0, 1});
    const auto hit = [&](double share, double angle) {
        const PieChartRenderer renderer(model);
        const PieLayout layout = renderer.layout(phone);
        return renderer.entryAt(layout, pointOn(layout, share, angle));
    };
    EXPECT_EQ(hit(0.8, 10), 0);
    EXPECT_EQ(hit(0.8, 190), 1);
    EXPECT_EQ(hit(0.8, 350), 3) << "the empty entry is skipped";
    EXPECT_EQ(hit(0.5, 10), std::nullopt) << "in the hole";
    EXPECT_EQ(hit(1.05, 10), std::nullopt) << "outside";
    model.rotationAngle = 300;
    EXPECT_EQ(hit(0.8, 110), 0);
    EXPECT_EQ(hit(0.8, 130), 1);
    model = barePie({1, 1});
    model.highlights = {{0, 0}};
    EXPECT_EQ(Picture(model).at(1.03, 90), blue);
    EXPECT_EQ(Picture(model).at(1.03, 270), white);
}

TEST(PieChartRendererTest, TextScaleGrowsTheChartInsteadOfThePie)
{
    const PieChartModel model = dashboardPie({3, 2, 1});
    const PieChartRenderer renderer(model);
    ChartStyle large;
    large.textScale = 2;
    const double scaled = renderer.preferredHeight(366, large);
    EXPECT_GT(scaled, renderer.preferredHeight(366, {}));
    EXPECT_EQ(renderer.layout({QSizeF(366, scaled), large, {}}).radius, 119);
    EXPECT_LT(renderer.preferredHeight(366, {}), 366 / 1.1);
}

} // namespace
} // namespace lodestar::charttest
