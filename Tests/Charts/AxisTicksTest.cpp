// SPDX-License-Identifier: Apache-2.0
#include "Charts/AxisTicks.h"

#include "ChartSupport.h"

#include <QLocale>
#include <gtest/gtest.h>

#include <cmath>

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

TEST(AxisTicksTest, StepsAreOneTwoAndFiveTimesATen)
{
    EXPECT_EQ(texts({2, 17}, 10), (QStringList{"2", "4", "6", "8", "10", "12", "14", "16"}));
    EXPECT_EQ(texts({0, 1}, 10),
              (QStringList{"0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0"})
                  .replaceInStrings("0.0", "0"));
    EXPECT_EQ(texts({-25, 30}, 6), (QStringList{"-20", "-10", "0", "10", "20", "30"}));
    EXPECT_EQ(texts({261.9, 262.2}, 4), (QStringList{"261.9", "262.0", "262.1", "262.2"}));
    EXPECT_EQ(tickStep(100, 10), (TickStep{1, 1})) << "a length of exactly ten steps needs no greater one";
    EXPECT_EQ(tickStep(101, 10), (TickStep{2, 1}));
}

TEST(AxisTicksTest, TextsHaveTheDigitsThatTellThemApart)
{
    EXPECT_EQ((TickStep{5, -1}.text(0.5)), "0.5");
    EXPECT_EQ((TickStep{5, -1}.text(12)), "12.0");
    EXPECT_EQ((TickStep{2, 0}.text(1e6)), "1000000");
    EXPECT_EQ((TickStep{1, -2}.text(-1e-12)), "0") << "no minus before nothing";
    EXPECT_EQ((TickStep{2, 30}.text(1.2e31)), "1.2e31");
    EXPECT_EQ((TickStep{5, -31}.text(1.5e-30)), "1.5e-30");
    QLocale::setDefault(QLocale::German);
    EXPECT_EQ((TickStep{5, -1}.text(0.5)), "0,5");
    QLocale::setDefault(QLocale::C);
}

TEST(AxisTicksTest, EveryAxisHoldsItsValuesAndEnds)
{
    const float largest = std::numeric_limits<float>::max();
    for (const PlotInterval values : {PlotInterval{2.8, 16},
                                      {16, 16},
                                      {0, 0},
                                      {-7, -7},
                                      {-3, 9},
                                      {1e-30, 1e-30},
                                      {1e-30, 3e-30},
                                      {1e30, 2e30},
                                      {-largest, largest},
                                      {largest, largest},
                                      {16777216, 16777217},
                                      {0, 1e-45},
                                      PlotInterval()}) {
        const PlotInterval axis = valueAxis(values, false, 8);
        ASSERT_TRUE(std::isfinite(axis.from) && std::isfinite(axis.to)) << values.from;
        EXPECT_GT(axis.length(), 0) << values.from;
        if (!values.isEmpty()) {
            EXPECT_LE(axis.from, values.from);
            EXPECT_GE(axis.to, values.to);
        }
        const QList<double> ticks = ticksWithin(axis, tickStep(axis.length(), 8));
        EXPECT_GE(ticks.size(), 3) << values.from << " " << values.to;
        EXPECT_LE(ticks.size(), 10) << values.from << " " << values.to;
        QStringList labels = texts(axis, 8);
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
    EXPECT_GT(valueAxis({12, 16}, false, 10).from, 0);
}
} // namespace
} // namespace lodestar::charttest
