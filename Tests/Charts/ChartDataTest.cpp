// SPDX-License-Identifier: Apache-2.0
#include "Charts/ChartData.h"

#include "Charts/ChartEasing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lodestar
{
namespace
{

TEST(NumberFormatterTest, CountsAreBareAndFractionsRoundHalfToEven)
{
    const NumberFormatter values{NumberFormatter::Style::Percent, 1, 1.0, QString()};
    EXPECT_EQ(values.stringFromNumber(3), "3");
    EXPECT_EQ(values.stringFromNumber(0), "0");
    EXPECT_EQ(values.stringFromNumber(100), "100") << "zeros before the point stay";
    EXPECT_EQ(values.stringFromNumber(2.25), "2.2");
    EXPECT_EQ(values.stringFromNumber(2.75), "2.8");
    EXPECT_EQ(values.stringFromNumber(2.04), "2");
    EXPECT_EQ(values.stringFromNumber(-0.04), "0") << "no negative zero";
    EXPECT_EQ(values.stringFromNumber(16777216), "16777216") << "no grouping";
}
TEST(ChartEasingTest, NumbersNameTheirCurves)
{
    const auto eased = [](int number, double at) { return ease(static_cast<ChartEasingOption>(number), at); };
    EXPECT_DOUBLE_EQ(eased(0, 0.3), 0.3);
    EXPECT_NEAR(eased(1, 0.5), 0.25, 1e-9) << "in quad";
    EXPECT_NEAR(eased(5, 0.5), 0.875, 1e-9) << "out cubic";
    EXPECT_NEAR(eased(9, 0.25), 8 * std::pow(0.25, 4), 1e-9) << "in-out quart";
    EXPECT_NEAR(eased(13, 0.5), 1 - std::sqrt(0.5), 1e-9) << "in sine";
    EXPECT_NEAR(eased(20, 0.5), std::sqrt(0.75), 1e-9) << "out circ";
    EXPECT_LT(eased(25, 0.2), 0) << "in back starts backwards";
    EXPECT_NEAR(eased(26, 0.5), 1 + 2.70158 * -0.125 + 1.70158 * 0.25, 1e-6) << "out back";
    EXPECT_GT(eased(26, 0.6), 1) << "out back overshoots";
    EXPECT_NEAR(eased(29, 0.5), 0.765625, 1e-6) << "out bounce";
    EXPECT_DOUBLE_EQ(eased(31, 0.3), 0.3) << "beyond the list";
    EXPECT_DOUBLE_EQ(eased(-1, 0.3), 0.3);
}

TEST(ChartEasingTest, EveryCurveStartsAndEndsExactly)
{
    for (int number = 0; number <= 30; ++number) {
        const auto option = static_cast<ChartEasingOption>(number);
        EXPECT_EQ(ease(option, 0), 0) << number;
        EXPECT_EQ(ease(option, 1), 1) << number;
        EXPECT_EQ(ease(option, -3), 0) << number;
        EXPECT_EQ(ease(option, 7), 1) << number;
        EXPECT_EQ(ease(option, std::nan("")), 1) << number;
    }
}
} // namespace
} // namespace lodestar
