// SPDX-License-Identifier: Apache-2.0
#include "ChartSupport.h"
#include "Charts/AxisTicks.h"
#include "Charts/ChartEasing.h"
#include "Charts/PlotSeries.h"

#include <QLocale>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace lodestar::charttest
{
namespace
{

QStringList texts(const PlotInterval& interval, double most)
{
    const TickStep step = tickStep(interval.length(), most);
    QStringList texts;
    for (const double tick : ticksWithin(interval, step)) {
        texts << step.text(tick);
    }
    return texts;
}

TEST(AxisTicksTest, StepsAreOneTwoAndFiveTimesATenAndTextsHaveTheDigitsThatTellThemApart)
{
    EXPECT_EQ(texts({2, 17}, 10), (QStringList{"2", "4", "6", "8", "10", "12", "14", "16"}));
    EXPECT_EQ(texts({-25, 30}, 6), (QStringList{"-20", "-10", "0", "10", "20", "30"}));
    EXPECT_EQ(texts({261.9, 262.2}, 4), (QStringList{"261.9", "262.0", "262.1", "262.2"}));
    EXPECT_EQ(tickStep(100, 10), (TickStep{1, 1})) << "a length of exactly ten steps needs no greater one";
    EXPECT_EQ((TickStep{1, -2}.text(-1e-12)), "0") << "no minus before nothing";
    EXPECT_EQ((TickStep{2, 30}.text(1.2e31)), "1.2e31");
    EXPECT_EQ((TickStep{5, -31}.text(1.5e-30)), "1.5e-30");
    QLocale::setDefault(QLocale::German);
    EXPECT_EQ((TickStep{5, -1}.text(12.5)), "12,5");
    QLocale::setDefault(QLocale::C);
    for (const auto& [least, stride] : {std::pair{0.5, 1}, {2.1, 4}, {4.5, 5}, {5.5, 10}, {11.0, 20}, {30.0, 40}}) {
        EXPECT_EQ(labelStride(least), stride);
    }
}

TEST(AxisTicksTest, EveryAxisHoldsItsValuesAndEnds)
{
    const double largest = static_cast<double>(std::numeric_limits<float>::max());
    const std::pair<double, double> cases[] = {
        {2.8, 16},  {16, 16}, {0, 0}, {-7, -7}, {1e-30, 3e-30}, {1e30, 2e30}, {-largest, largest}, {16777216, 16777217},
        {0, 1e-45}, {0, -1}};
    for (const auto& [from, to] : cases) {
        SCOPED_TRACE(testing::Message() << from << " to " << to);
        const PlotInterval values{from, to};
        const PlotInterval axis = valueAxis(values, false, 8);
        ASSERT_TRUE(std::isfinite(axis.from) && std::isfinite(axis.to) && axis.length() > 0);
        EXPECT_TRUE(values.isEmpty() || (axis.from <= values.from && axis.to >= values.to));
        QStringList labels = texts(axis, 8);
        EXPECT_GE(labels.size(), 3);
        EXPECT_LE(labels.size(), 10);
        EXPECT_EQ(labels.removeDuplicates(), 0) << labels.join(' ').toStdString();
    }
}

TEST(AxisTicksTest, AnAxisLeavesRoomButNeverCrossesZeroForIt)
{
    EXPECT_EQ(valueAxis({2.8, 16}, false, 10), (PlotInterval{2, 17}));
    EXPECT_EQ(valueAxis({5.2, 16}, false, 5).from, 2.5) << "a whole step of 5 would be empty";
    EXPECT_EQ(valueAxis({0, 10}, false, 10).from, 0);
    EXPECT_GT(valueAxis({0, 10}, false, 10).to, 10) << "the highest value keeps off the edge";
    EXPECT_EQ(valueAxis({-10, 0}, false, 10).to, 0);
    EXPECT_EQ(valueAxis({12, 16}, true, 10).from, 0);
}

TEST(NumberFormatterTest, CountsAreBareAndFractionsRoundHalfToEven)
{
    const NumberFormatter values{NumberFormatter::Style::Percent, 1, 1.0, QString()};
    EXPECT_EQ(values.stringFromNumber(100), "100") << "zeros before the point stay";
    EXPECT_EQ(values.stringFromNumber(2.25), "2.2");
    EXPECT_EQ(values.stringFromNumber(2.75), "2.8");
    EXPECT_EQ(values.stringFromNumber(2.04), "2");
    EXPECT_EQ(values.stringFromNumber(-0.04), "0") << "no negative zero";
    EXPECT_EQ(values.stringFromNumber(16777216), "16777216") << "no grouping";
}

TEST(ChartEasingTest, NumbersNameTheirCurvesWhichStartAndEndExactly)
{
    const auto eased = [](int number, double at) { return ease(static_cast<ChartEasingOption>(number), at); };
    EXPECT_NEAR(eased(9, 0.25), 8 * std::pow(0.25, 4), 1e-9) << "in-out quart";
    EXPECT_NEAR(eased(13, 0.5), 1 - std::sqrt(0.5), 1e-9) << "in sine";
    EXPECT_NEAR(eased(26, 0.5), 1 + 2.70158 * -0.125 + 1.70158 * 0.25, 1e-6) << "out back";
    EXPECT_DOUBLE_EQ(eased(31, 0.3), 0.3) << "beyond the list";
    for (int number = 0; number <= 30; ++number) {
        EXPECT_EQ(eased(number, -3), 0) << number;
        EXPECT_EQ(eased(number, 1), 1) << number;
        EXPECT_EQ(eased(number, std::nan("")), 1) << number;
    }
}

TEST(PlotSeriesTest, ExtremesOfARangeAreThoseOfItsEntries)
{
    std::mt19937 random(7);
    QList<ChartEntry> entries;
    for (int i = 0; i < 2000; ++i) {
        entries << ChartEntry{static_cast<float>(random() % 100000), i};
    }
    const PlotSeries series(entries);
    for (int round = 0; round < 300; ++round) {
        const qsizetype first = static_cast<qsizetype>(random() % 2000);
        const qsizetype last = first + static_cast<qsizetype>(random() % (2001U - static_cast<unsigned>(first)));
        PlotInterval expected;
        for (qsizetype i = first; i < last; ++i) {
            expected.include(static_cast<double>(entries.at(i).value));
        }
        ASSERT_EQ(series.values(first, last), expected) << first << " to " << last;
    }
}

} // namespace
} // namespace lodestar::charttest
