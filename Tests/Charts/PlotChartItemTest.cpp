// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotChartItem.h"

#include "ChartItemFixture.h"
#include "ChartSupport.h"

#include <QAccessible>
#include <QWheelEvent>

namespace lodestar::charttest
{
namespace
{

class PlotChartItemTest : public ChartItemFixture<PlotChartView, PlotChartItem>
{
protected:
    void SetUp() override
    {
        QList<float> values;
        for (int i = 0; i < 240; ++i) {
            values << static_cast<float>(i % 17);
        }
        showLine(m_view, values);
        show(R"(PlotChart { outlet: chartView; width: 366; height: 400; seriesColors: ["#e32226"] })");
    }

    const PlotViewport& seen() const { return m_view.viewport(); }
    bool settled()
    {
        return QTest::qWaitFor([this] { return !m_item->isMoving(); });
    }
    void turnWheel(QPoint angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QPoint at(183, 180);
        QWheelEvent event(at, m_window->mapToGlobal(at), {}, angle, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_window, &event);
    }
};

TEST_F(PlotChartItemTest, TwoFingersZoomAboutThePointBetweenThem)
{
    const QRectF plot = PlotRenderer(m_view.model()).layout({QSizeF(366, 400), {}, {}}).transform.plot;
    const QPoint center = plot.center().toPoint();
    const auto spread = [&] {
        const QPoint by(1, 1);
        touch().press(0, center - 40 * by).press(1, center + 40 * by);
        touch().move(0, center - 41 * by).move(1, center + 41 * by);
        touch().move(0, center - 80 * by).move(1, center + 80 * by);
        touch().release(0, center - 80 * by).release(1, center + 80 * by);
    };
    spread();
    ASSERT_TRUE(QTest::qWaitFor([this] { return seen().isZoomed(); }));
    EXPECT_NEAR(seen().width, 0.5, 0.03);
    EXPECT_NEAR(seen().height, 0.5, 0.03);
    EXPECT_NEAR(seen().x + seen().width / 2, 0.5, 0.02);
    EXPECT_EQ(scrolled(), 0);

    // Both fingers left at once; the next stroke is judged anew.
    m_view.setViewport({});
    stroke({200, 300}, {0, -200}, [this] { return scrolled() > 20; });
    m_page->setProperty("contentY", 0);

    m_view.setScaleEnabled(false);
    spread();
    EXPECT_EQ(seen(), PlotViewport());
}

TEST_F(PlotChartItemTest, AFingerMovesAZoomedPlotAndOtherwiseThePage)
{
    m_view.setViewport({0.5, 0, 0.25, 1});
    stroke({100, 150}, {150, 4}, [this] { return seen().x < 0.45; });
    EXPECT_EQ(scrolled(), 0);
    ASSERT_TRUE(settled());
    stroke({200, 300}, {0, -200}, [this] { return scrolled() > 20; });
    EXPECT_EQ(seen().height, 1);
    m_page->setProperty("contentY", 0);

    m_view.setViewport({0.5, 0.25, 0.25, 0.5});
    stroke({200, 300}, {0, 150}, [this] { return seen().y > 0.3; });
    EXPECT_EQ(scrolled(), 0) << "zoomed upwards too, the plot takes upright strokes";
}

TEST_F(PlotChartItemTest, AMouseDragsWithinTheEdgesAndOnlyWhenAllowed)
{
    const auto drag = [this](QPoint from, QPoint to) {
        QTest::mousePress(m_window, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(m_window, (from + to) / 2);
        QTest::mouseMove(m_window, to);
        EXPECT_EQ(m_item->cursor().shape(), m_view.model().dragEnabled ? Qt::ClosedHandCursor : Qt::ArrowCursor);
        QTest::mouseRelease(m_window, Qt::LeftButton, Qt::NoModifier, to);
        ASSERT_TRUE(settled());
    };
    EXPECT_EQ(m_item->cursor().shape(), Qt::ArrowCursor);
    m_view.setViewport({0.05, 0, 0.5, 1});
    EXPECT_EQ(m_item->cursor().shape(), Qt::OpenHandCursor);
    drag({60, 150}, {350, 150});
    EXPECT_EQ(seen(), (PlotViewport{0, 0, 0.5, 1})) << "to the edge and no further";
    drag({340, 150}, {240, 150});
    EXPECT_GT(seen().x, 0.1) << "to the left shows what is later";
    m_view.setViewport({0.2, 0, 0.5, 1});
    m_view.setDragEnabled(false);
    drag({60, 150}, {350, 150});
    EXPECT_EQ(seen().x, 0.2);
}

TEST_F(PlotChartItemTest, ADoubleTapZoomsInThereAndAtTheClosestShowsAll)
{
    m_item->setProperty("reducedMotion", true);
    const auto tapTwice = [this] {
        for (int taps = 0; taps < 2; ++taps) {
            touch().press(0, {300, 100});
            touch().release(0, {300, 100});
        }
    };
    tapTwice();
    EXPECT_EQ(seen().width, 0.5);
    EXPECT_EQ(seen().height, 0.5);
    EXPECT_GT(seen().x, 0.35);
    EXPECT_GT(seen().y, 0.3) << "higher on the screen is a greater value";
    for (int i = 0; i < 12 && seen().isZoomed(); ++i) {
        tapTwice();
    }
    EXPECT_EQ(seen(), PlotViewport());
    m_item->setProperty("reducedMotion", false);
    tapTwice();
    EXPECT_TRUE(m_item->isMoving());
    ASSERT_TRUE(settled());
    EXPECT_EQ(seen().width, 0.5);
    tapTwice();
    m_view.setData(m_view.data());
    EXPECT_FALSE(m_item->isMoving()) << "new data are shown whole";
}

TEST_F(PlotChartItemTest, TheWheelZoomsAtThePointerAndGoesOnToThePageAtEitherEnd)
{
    turnWheel({0, 120});
    EXPECT_LT(seen().width, 0.9);
    EXPECT_EQ(seen().height, 1);
    EXPECT_EQ(scrolled(), 0);
    const double x = seen().x;
    turnWheel({-120, 0});
    EXPECT_GT(seen().x, x) << "sideways it moves";
    const double further = seen().x;
    turnWheel({0, 120}, Qt::ShiftModifier);
    EXPECT_LT(seen().x, further) << "with Shift, too";
    EXPECT_NEAR(seen().width, 1 / 1.2, 1e-9);
    turnWheel({0, 120}, Qt::ControlModifier);
    EXPECT_NEAR(seen().height, 1 / 1.2, 1e-9);
    turnWheel({0, -120});
    EXPECT_EQ(seen().height, 1);
    turnWheel({0, -240});
    EXPECT_EQ(seen(), PlotViewport());
    turnWheel({0, -120});
    EXPECT_TRUE(QTest::qWaitFor([this] { return scrolled() > 0; }));
}

TEST_F(PlotChartItemTest, KeysInQuickSuccessionAddUp)
{
    m_item->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(near(m_window->grabWindow().pixelColor(1, 200), QColor(0x00, 0x72, 0xAD), 8)) << "the focus is shown";
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Up}) {
        QTest::keyClick(m_window, key);
    }
    ASSERT_TRUE(settled());
    EXPECT_EQ(seen(), (PlotViewport{0.25, 0.35, 0.5, 0.5}));
}

TEST_F(PlotChartItemTest, IsReadWithItsTextAndOutlivesItsView)
{
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(m_item);
    ASSERT_TRUE(interface != nullptr);
    EXPECT_EQ(interface->role(), QAccessible::Chart);
    EXPECT_EQ(interface->text(QAccessible::Name), "line 1");

    const auto ink = [this] {
        const QImage image = m_window->grabWindow();
        int found = 0;
        for (int pixel = 0; pixel < image.width() * image.height(); ++pixel) {
            found += near(image.pixelColor(pixel % image.width(), pixel / image.width()), red, 40) ? 1 : 0;
        }
        return found;
    };
    auto other = std::make_unique<PlotChartView>();
    showLine(*other, {1, 2, 3});
    m_item->setOutlet(other.get());
    EXPECT_GT(ink(), 100) << "in the appearance's colour";
    QTest::keyClick(m_window, Qt::Key_Plus);
    other.reset();
    EXPECT_EQ(ink(), 0);
    m_item->forceActiveFocus();
    QTest::keyClick(m_window, Qt::Key_Plus);
    QTest::mouseDClick(m_window, Qt::LeftButton, Qt::NoModifier, {180, 100});
    turnWheel({0, 120});
}

} // namespace
} // namespace lodestar::charttest
