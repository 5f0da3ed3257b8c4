// SPDX-License-Identifier: Apache-2.0
#include "ChartSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lodestar::charttest
{
namespace
{

const QRectF everywhere(0, 0, 366, 325);
const ChartFrame phone{everywhere.size(), {}, {}};

/// The dashboard's pie without values and legend, so that only slices are drawn.
PieChartModel barePie(const QList<float>& counts)
{
    PieChartModel model = dashboardPie(counts);
    model.legend.enabled = false;
    model.data.dataSet.valueFormatter.multiplier = std::nan("");
    return model;
}

TEST(PieChartRendererTest, SlicesRunClockwiseFromTwelveOClockAndTurnWithThePie)
{
    PieChartModel model = barePie({2, 1, 1});
    const PiePicture pie(model);
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
        EXPECT_EQ(PiePicture(model).at(0.8, 100), blue) << turn;
        EXPECT_EQ(PiePicture(model).at(0.8, 80), green) << turn;
    }
}

TEST(PieChartRendererTest, RingHoleAndBandHaveTheirRadiiAndSlicesAGapOfTwoPoints)
{
    PieChartModel model = barePie({1, 1});
    const PiePicture pie(model, phone, 4);
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
    EXPECT_EQ(PiePicture(model, night).at(0.2, 90).alpha(), 0);
    model.holeTransparent = false;
    night.style.cardColor = grey;
    EXPECT_EQ(PiePicture(model, night).at(0.2, 90), grey);
    model.drawHole = false;
    EXPECT_EQ(PiePicture(model).at(0.3, 90), blue);
    EXPECT_EQ(PiePicture(model).at(0.56, 90), blue) << "no hole, no band";
}

TEST(PieChartRendererTest, AnyCountsMakeAPie)
{
    const float infinity = std::numeric_limits<float>::infinity();
    for (const QList<float>& counts : {QList<float>{}, QList<float>{0, 0}, QList<float>{-3, std::nanf(""), infinity}}) {
        const PiePicture pie(barePie(counts));
        EXPECT_TRUE(pie.layout.slices.empty());
        EXPECT_EQ(pie.count(white, everywhere), 732 * 650);
    }
    const PiePicture bad(barePie({1, -100, std::nanf(""), 1}));
    ASSERT_EQ(bad.layout.slices.size(), 2U);
    EXPECT_EQ(bad.at(0.8, 90), blue);
    EXPECT_EQ(bad.at(0.8, 270), grey) << "colours keep to their positions";
    const PiePicture one(barePie({0, 7, 0}));
    for (int angle = 0; angle < 360; angle += 5) {
        EXPECT_EQ(one.at(0.8, angle), red) << "one state is a full ring, " << angle;
    }
    const PiePicture many(barePie(QList<float>(360, 1.0F)));
    ASSERT_EQ(many.layout.slices.size(), 360U);
    double end = 0;
    for (const PieSlice& slice : many.layout.slices) {
        EXPECT_NEAR(slice.start, end, 1e-6);
        EXPECT_LE(2 * slice.gap, slice.sweep / 2 * M_PI / 180 * many.layout.radius) << "half a slice remains";
        end = slice.start + slice.sweep;
    }
    EXPECT_TRUE(PiePicture(dashboardPie({3, 2}), {QSizeF(30, 20), {}, {}}).layout.slices.empty());
}

/// How many pixels differ from the slice around the middle of its value.
int inkAround(const PiePicture& pie, double angle, const QColor& slice)
{
    const QRectF area(pointOn(pie.layout, 0.79, angle) - QPointF(7, 6), QSizeF(14, 12));
    return qRound(area.width() * area.height() * pie.ratio * pie.ratio) - pie.count(slice, area);
}

TEST(PieChartRendererTest, ValuesStandInTheirSlicesOnAGroundThatTheyReadOn)
{
    const PiePicture pie(dashboardPie({3, 3, 3}));
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

    PieChartModel shares = dashboardPie({3, 1});
    shares.usePercentValues = true;
    EXPECT_EQ(shares.valueText({3, 0}), "75");
}

TEST(PieChartRendererTest, ValuesWithoutRoomAreMadeSmallerOrLeftOff)
{
    const PiePicture pie(dashboardPie({2000, 1}));
    EXPECT_EQ(pie.count(white, QRectF(pie.layout.center + QPointF(-116, -8), QSizeF(45, 16))), 0)
        << "the left is plain";
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

TEST(PieChartRendererTest, GrowsInBySweepAndRadius)
{
    const auto grown = [](double x, double y) { return PiePicture(barePie({1, 1}), {QSizeF(366, 325), {}, {x, y}}); };
    EXPECT_EQ(grown(0, 0).count(white, everywhere), 732 * 650) << "nothing yet";
    const PiePicture half = grown(0.5, 0.5);
    EXPECT_LT(half.layout.radius, 119);
    EXPECT_EQ(half.at(0.8, 45), blue);
    EXPECT_EQ(half.at(0.8, 135), red);
    EXPECT_EQ(half.at(0.8, 270), white);
    const PiePicture over = grown(1.1, 1.1);
    EXPECT_GT(over.layout.radius, 119);
    EXPECT_EQ(over.at(0.8, 5), blue) << "the overshoot does not run over the first slice";
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
