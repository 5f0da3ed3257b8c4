// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotSeries.h"

#include "Charts/PlotSpace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace lodestar
{
namespace
{

TEST(PlotSeriesTest, EntriesAreSortedAndThoseThatAreNotFiniteLeftOut)
{
    const PlotSeries series({{3, 9}, {NAN, 4}, {1, 0}, {INFINITY, 1}, {2, 4}, {-5, 4}});
    ASSERT_EQ(series.size(), 4);
    EXPECT_EQ(series.at(0), (ChartEntry{1, 0}));
    EXPECT_EQ(series.at(1), (ChartEntry{2, 4})) << "of the same index in the order given";
    EXPECT_EQ(series.at(2), (ChartEntry{-5, 4}));
    EXPECT_EQ(series.latest(), (ChartEntry{3, 9}));
    EXPECT_EQ(series.extent(), (PlotExtent{{0, 9}, {-5, 3}}));
    EXPECT_TRUE(PlotSeries({{NAN, 0}}).isEmpty());
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
    EXPECT_TRUE(series.values(5, 5).isEmpty());
}

TEST(PlotViewportTest, ZoomKeepsThePointAndStaysWithinTheWhole)
{
    const QSizeF smallest(0.1, 0.1);
    const PlotViewport closer = PlotViewport().zoomed(2, 4, {0.25, 0.5}, smallest);
    EXPECT_EQ(closer, (PlotViewport{0.125, 0.375, 0.5, 0.25}));
    EXPECT_EQ(closer.zoomed(1000, 1, {0, 0}, smallest).width, 0.1);
    EXPECT_EQ(closer.zoomed(0.01, 0.01, {1, 1}, smallest), PlotViewport());
    EXPECT_EQ(closer.zoomed(NAN, 0, {1, 1}, smallest), closer);
    EXPECT_EQ(closer.moved(-9, 9), (PlotViewport{0, 0.75, 0.5, 0.25})) << "as far as the edges";
    EXPECT_EQ(closer.moved(0.1, 0), (PlotViewport{0.175, 0.375, 0.5, 0.25}));
    const PlotExtent seen = closer.of({{0, 80}, {-8, 8}});
    EXPECT_EQ(seen, (PlotExtent{{10, 50}, {-2, 2}}));
}

} // namespace
} // namespace lodestar
