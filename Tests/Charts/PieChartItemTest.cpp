// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieChartItem.h"

#include "ChartItemFixture.h"
#include "ChartSupport.h"

#include <QSignalSpy>

namespace lodestar::charttest
{
namespace
{

class PieChartItemTest : public ChartItemFixture<PieChartView, PieChartItem>
{
protected:
    void SetUp() override
    {
        const PieChartModel model = dashboardPie({2, 1, 0, 1});
        m_view.setHoleRadiusPercent(0.54);
        m_view.setDrawSliceText(false);
        m_view.setLegend(model.legend);
        m_view.setRotationWithTwoFingers(true);
        m_view.setData(model.data);

        show(R"(PieChart { outlet: chartView; width: 366; height: 325 })");
        m_layout = PieChartRenderer(m_view.model()).layout({QSizeF(366, 325), {}, {}});
    }

    QPoint on(double share, double angle) const { return pointOn(m_layout, share, angle).toPoint(); }
    PieLayout m_layout;
};

TEST_F(PieChartItemTest, TapsClicksAndKeysSelectAndASelectedSliceStandsOut)
{
    touch().press(0, on(0.8, 225));
    touch().release(0, on(0.8, 225));
    EXPECT_EQ(m_view.selectedEntry(), 1);
    const auto click = [this](double share, double angle) {
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, on(share, angle));
    };
    const std::pair<double, qsizetype> slices[] = {{10, 0}, {190, 1}, {350, 3}};
    for (const double turn : {0.0, 300.0}) {
        m_view.setRotationAngle(turn);
        for (const auto& [angle, entry] : slices) {
            click(0.8, angle + turn);
            EXPECT_EQ(m_view.selectedEntry(), entry) << angle << " turned by " << turn;
        }
        for (const double beside : {0.5, 1.1}) {
            click(beside, 10);
            EXPECT_EQ(m_view.selectedEntry(), std::nullopt) << "neither the hole nor the card is a slice";
        }
    }
    m_view.setRotationAngle(0);
    m_item->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(m_item->hasVisualFocus());
    QTest::keyClick(m_window, Qt::Key_Right);
    EXPECT_EQ(m_view.selectedEntry(), 0);
    const QImage picture = m_window->grabWindow();
    EXPECT_TRUE(near(picture.pixelColor(on(1.03, 90)), blue));
    EXPECT_TRUE(near(picture.pixelColor(on(1.03, 225)), white));
    QTest::keyClick(m_window, Qt::Key_Left);
    EXPECT_EQ(m_view.selectedEntry(), 3) << "round the end";
    QTest::keyClick(m_window, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(m_view.model().rotationAngle, 15);
    QTest::keyClick(m_window, Qt::Key_Escape);
    EXPECT_EQ(m_view.selectedEntry(), std::nullopt);
}

TEST_F(PieChartItemTest, AFingerAlongTheRingTurnsThePieAndAcrossTheRingScrollsThePage)
{
    m_item->setProperty("reducedMotion", true); // nothing turns on by itself
    // Down the right side: what a page would take for scrolling. The window hands moves on once a frame, so each step
    // waits for what it brings about; the pause keeps the stroke at a hand's pace.
    touch().press(0, on(0.8, 90));
    for (int angle = 94; angle <= 150; angle += 4) {
        QTest::qWait(12);
        touch().move(0, on(0.8, angle));
        const double expected = angle - 90;
        ASSERT_TRUE(QTest::qWaitFor([&] { return std::abs(m_view.model().rotationAngle - expected) < 2; })) << angle;
    }
    EXPECT_EQ(scrolled(), 0);
    touch().release(0, on(0.8, 150));
    EXPECT_EQ(m_view.selectedEntry(), std::nullopt) << "a turn is no tap";

    const double turned = m_view.model().rotationAngle;
    stroke(on(0.8, 180), {0, -120}, [this] { return scrolled() > 20; });
    EXPECT_EQ(m_view.model().rotationAngle, turned);
    EXPECT_EQ(m_view.selectedEntry(), std::nullopt);
}

TEST_F(PieChartItemTest, TwoFingersTurnUnlessSwitchedOff)
{
    const auto twist = [this] {
        const QPoint center = m_layout.center.toPoint();
        touch().press(0, center + QPoint(-60, 0)).press(1, center + QPoint(60, 0));
        touch().move(0, center + QPoint(-60, -1)).move(1, center + QPoint(60, 1));
        touch().move(0, center + QPoint(0, -60)).move(1, center + QPoint(0, 60));
        touch().release(0, center + QPoint(0, -60)).release(1, center + QPoint(0, 60));
    };
    twist();
    EXPECT_NEAR(m_view.model().rotationAngle, 90, 2);
    m_view.setRotationAngle(0);
    m_view.setRotationWithTwoFingers(false);
    twist();
    EXPECT_EQ(m_view.model().rotationAngle, 0);
}

TEST_F(PieChartItemTest, GrowsInWhenToldAndRestsAfterwards)
{
    m_view.animate(0.05, 0.1, ChartEasingOption::EaseOutBack);
    EXPECT_TRUE(m_item->isAnimating());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_item->isAnimating(); }));
    QTest::qWait(50); // Let what is still to be drawn be drawn.
    const QSignalSpy frames(m_window, &QQuickWindow::frameSwapped);
    QTest::qWait(200);
    EXPECT_EQ(frames.count(), 0) << "a chart at rest draws nothing";
    m_item->setProperty("reducedMotion", true);
    m_view.animate(1, 1, ChartEasingOption::Linear);
    EXPECT_FALSE(m_item->isAnimating());
}

TEST_F(PieChartItemTest, ShowsTheViewAsItChangesAndOutlivesIt)
{
    const auto probe = [this] { return m_window->grabWindow().pixelColor(on(0.7, 90)); };
    EXPECT_TRUE(near(probe(), blue));
    m_view.setRotationAngle(180);
    EXPECT_FALSE(near(probe(), blue));
    for (const bool hidden : {true, false}) {
        m_view.setHidden(hidden);
        EXPECT_EQ(m_item->isVisible(), !hidden);
    }
    auto other = std::make_unique<PieChartView>();
    other->setData(dashboardPie({1}).data);
    m_item->setOutlet(other.get());
    EXPECT_TRUE(near(probe(), blue));
    other.reset();
    EXPECT_TRUE(near(probe(), Qt::white)) << "a view that is gone leaves an empty chart";
    QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, on(0.8, 90));
    m_item->forceActiveFocus();
    QTest::keyClick(m_window, Qt::Key_Right);
}

} // namespace
} // namespace lodestar::charttest
