// SPDX-License-Identifier: Apache-2.0
#include "Charts/ReadableChartItem.h"

#include "ChartItemFixture.h"
#include "ChartSupport.h"

#include <QDateTime>

#include <cmath>

namespace lodestar::charttest
{
namespace
{

constexpr int step = 180;
constexpr qint64 origin = 1773273600; // Midnight in UTC.

QString clockText(const TimeTick& tick)
{
    return QDateTime::fromSecsSinceEpoch(tick.time, Qt::UTC).toString("d HH:mm");
}

/// A chart of 240 samples, three minutes apart; every tenth from the fifth on has none.
class ReadableChartItemTest : public ChartItemFixture<PlotChartView, ReadableChartItem>
{
protected:
    ReadableChartItemTest()
    {
        qputenv("TZ", "UTC");
        ::tzset();
    }
    void SetUp() override
    {
        setUpLines(m_view);
        Legend legend = m_view.legend();
        legend.enabled = false;
        m_view.setLegend(legend);
        XAxis axis = m_view.xAxis();
        axis.time = TimeScale{origin, step, &clockText};
        m_view.setXAxis(axis);
        PlotChartData data;
        data.lineDataSets = {line(2), line(20)};
        data.barStyle.place = step;
        m_view.setData(data);
        show("ReadableChart { outlet: chartView; width: 366; height: 400 }");
    }
    static LineChartDataSet line(float height)
    {
        LineChartDataSet set;
        for (int i = 0; i < 240; ++i) {
            if (i % 10 != 5) {
                set.entries << ChartEntry{height + static_cast<float>(i % 7), i * step};
            }
        }
        return set;
    }
    /// A point of the plot, by shares of it.
    QPoint spot(double share, double up = 0.5) const
    {
        const QRectF& plot = m_item->plotArea();
        return QPointF(plot.left() + share * plot.width(), plot.bottom() - up * plot.height()).toPoint();
    }
    int indexAt(QPoint point) const
    {
        const QRectF& plot = m_item->plotArea();
        return qRound((point.x() - plot.left()) / plot.width() * 239) * step;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(m_window, key, modifiers); }
    std::optional<int> read() const { return m_view.readIndex(); }
};

TEST_F(ReadableChartItemTest, TheMouseReadsTheNearestSampleWhereItHovers)
{
    QTest::mouseMove(m_window, spot(0.25));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_item->isReading(); }));
    EXPECT_NEAR(read().value(), indexAt(spot(0.25)), step);
    EXPECT_NEAR(m_item->readX(), spot(0.25).x(), 1);
    ASSERT_EQ(m_item->readYs().size(), 2);
    EXPECT_GT(m_item->readYs()[0], m_item->readYs()[1]) << "the greater value is higher up";

    m_view.setViewport({0.6, 0, 0.2, 1});
    EXPECT_FALSE(m_item->isReading()) << "the sample is out of view";
    m_view.setViewport({0.2, 0, 0.2, 0.5});
    EXPECT_TRUE(m_item->isReading());
    EXPECT_TRUE(std::isnan(m_item->readYs()[1])) << "its value is out of view";

    QTest::mouseMove(m_window, QPoint(183, 480));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !read(); }));
    EXPECT_FALSE(m_item->isReading());
}

TEST_F(ReadableChartItemTest, AFingerThatRestsReadsUntilItLeaves)
{
    m_view.setViewport({0, 0, 0.5, 1});
    touch().press(0, spot(0.5));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_item->isReading(); }));
    const int first = read().value();
    // Across the chart, and then far above it: neither the plot nor the page moves.
    touch().move(0, spot(0.75));
    ASSERT_TRUE(QTest::qWaitFor([&] { return read() > first; }));
    touch().move(0, spot(0.9, 0.02));
    touch().move(0, QPoint(spot(0.9).x(), 460));
    QTest::qWait(30);
    EXPECT_GT(read().value_or(0), first);
    EXPECT_EQ(m_view.viewport().x, 0);
    EXPECT_EQ(scrolled(), 0);
    touch().release(0, QPoint(spot(0.9).x(), 460));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !read(); }));

    // A finger that moves at once moves the plot, and no reading begins under it.
    stroke(spot(0.8), {-120, 0}, [this] { return m_view.viewport().x > 0.05; });
    QTest::qWait(450);
    EXPECT_FALSE(read());
    // The second finger makes a pinch of what was a reading.
    touch().press(0, spot(0.4));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_item->isReading(); }));
    touch().stationary(0).press(1, spot(0.6));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !read(); }));
    touch().release(0, spot(0.4)).release(1, spot(0.6));
}

TEST_F(ReadableChartItemTest, KeysStepFromSampleToSampleAndTakeTheViewAlong)
{
    m_item->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(read(), 0);
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Right);
    }
    EXPECT_EQ(read(), 6 * step) << "the fifth has no values";
    press(Qt::Key_Left);
    EXPECT_EQ(read(), 4 * step);
    press(Qt::Key_Home);
    press(Qt::Key_Left);
    EXPECT_EQ(read(), 0) << "there is nothing before the first";

    m_view.setViewport({0, 0, 0.1, 1});
    press(Qt::Key_End);
    EXPECT_EQ(read(), 239 * step);
    EXPECT_NEAR(m_view.viewport().x, 0.9, 1e-9);
    EXPECT_TRUE(m_item->isReading());
    press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_view.viewport().x < 0.89; })) << "moves the plot";
    EXPECT_EQ(read(), 239 * step);

    press(Qt::Key_Escape);
    EXPECT_FALSE(read());
    EXPECT_TRUE(m_view.isZoomed());
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_view.isZoomed(); }));
    press(Qt::Key_Left);
    EXPECT_EQ(read(), 239 * step) << "begins with the latest";
    m_view.setData(m_view.data());
    EXPECT_FALSE(read()) << "new data";
}

TEST_F(ReadableChartItemTest, TimeAxisHasLabelsApartFromEachOtherAtEveryZoom)
{
    for (const double share : {1.0, 0.4, 0.1, 0.02}) {
        m_view.setViewport({0.3, 0, share, 1});
        for (const double width : {200.0, 366.0, 1400.0}) {
            for (const double scale : {1.0, 2.0}) {
                ChartFrame frame{{width, 400}, {}, {}};
                frame.style.textScale = scale;
                const std::vector<AxisLabel> labels = PlotPicture(m_view, frame).layout.indexLabels;
                ASSERT_FALSE(labels.empty()) << share << " " << width;
                for (std::size_t i = 1; i < labels.size(); ++i) {
                    EXPECT_GT(labels[i].box.left(), labels[i - 1].box.right() + 5 * scale);
                }
            }
        }
    }
    m_view.setViewport({});
    EXPECT_EQ(PlotPicture(m_view).layout.indexLabels.at(1).text, "12 03:00");
    EXPECT_DOUBLE_EQ(m_view.smallestViewport().width(), 2.0 / 239);

    // A single sample stands in the middle of an axis that still has times.
    PlotChartData single;
    single.lineDataSets = {LineChartDataSet()};
    single.lineDataSets[0].entries = {{5, 0}};
    m_view.setData(single);
    const PlotLayout layout = PlotPicture(m_view).layout;
    EXPECT_EQ(layout.transform.toX(0), layout.transform.plot.center().x());
    EXPECT_GE(layout.indexLabels.size(), 2U);
}

TEST_F(ReadableChartItemTest, ManyBarsFillTheirColumnsAsFarAsTheLongestReaches)
{
    constexpr int count = 24'000;
    PlotChartData data;
    data.barStyle = {.share = 0.8, .place = 30};
    BarChartDataSet bars;
    bars.colors = {green};
    for (int i = 0; i < count; ++i) {
        bars.entries << ChartEntry{i == count / 2 ? 90.F : i < count / 4 ? 0.F : 10.F, i * 30};
    }
    data.barDataSets = {bars};
    m_view.setData(data);
    const PlotPicture picture(m_view);
    const double middle = count / 2 * 30;
    EXPECT_NEAR(picture.span(green, middle).top(), picture.point(0, 90).y(), 1) << "one among many in its column";
    EXPECT_NEAR(picture.span(green, middle * 1.5).top(), picture.point(0, 10).y(), 1);
    EXPECT_TRUE(picture.span(green, middle * 0.25).isEmpty());
}

} // namespace
} // namespace lodestar::charttest
