// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

namespace lodestar::scenes
{
namespace
{

class PerformanceSceneTest : public SceneTest
{
protected:
    PCMViewController& openPerformance(QSize size = {390, 844})
    {
        stage.show(size, fleet());
        auto& performance = *stage.open<PCMViewController>(
            "pcmDataView", {.corvel = demoConsole(), .sysName = "helios-01", .systemID = "any"});
        stage.waitFor([&] { return !performance.chartView()->isHidden(); });
        stage.settle(200);
        return performance;
    }
    QQuickItem* chart() const
    {
        const auto found = stage.items(QStringLiteral("LineChart"));
        return found.empty() ? nullptr : found.front();
    }
    PlotViewport viewport(PCMViewController& performance) const { return performance.chartView()->viewport(); }
};

TEST_F(PerformanceSceneTest, FromTheListOfSystemsToMemoryByPointer)
{
    stage.show({390, 844}, fleet());
    stage.openList("managedSystemsView", {.corvel = demoConsole()});
    click(row(0));
    ASSERT_TRUE(waitForSheet());
    ASSERT_TRUE(button("Performance Monitoring")->isEnabled());
    click(button("Performance Monitoring"));
    ASSERT_TRUE(stage.waitFor([&] { return text("16.00") != nullptr; }));
    stage.settle(400);
    EXPECT_NE(text("helios-01"), nullptr);
    EXPECT_NE(text("12.00"), nullptr);
    EXPECT_NE(text("6.50"), nullptr);
    click(button("Memory"));
    ASSERT_TRUE(stage.waitFor([&] { return text("262.14") != nullptr; }));
    EXPECT_NE(text("10.24"), nullptr);
    EXPECT_EQ(text("16.00"), nullptr);
    // The choice by keyboard, from the segment that has the focus.
    press(Qt::Key_Left);
    ASSERT_TRUE(stage.waitFor([&] { return text("16.00") != nullptr; }));
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return text("helios-02") != nullptr; }));
}

TEST_F(PerformanceSceneTest, ChartZoomsByDoubleTapAndIsDragged)
{
    PCMViewController& performance = openPerformance();
    QQuickItem* const item = chart();
    ASSERT_NE(item, nullptr);
    const PlotViewport whole = viewport(performance);
    QTest::mouseDClick(&stage.window(), Qt::LeftButton, {}, centerOf(item));
    ASSERT_TRUE(stage.waitFor([&] { return !(viewport(performance) == whole); }));
    stage.settle(400);
    const PlotViewport zoomed = viewport(performance);
    const QPoint from = centerOf(item);
    QTest::mousePress(&stage.window(), Qt::LeftButton, {}, from);
    for (int step = 1; step <= 8; ++step) {
        QTest::mouseMove(&stage.window(), from + QPoint(-10 * step, 0));
    }
    QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, from + QPoint(-80, 0));
    EXPECT_FALSE(viewport(performance) == zoomed);
    // New data show the whole again.
    click(button("Memory"));
    ASSERT_TRUE(stage.waitFor([&] { return text("262.14") != nullptr; }));
    EXPECT_TRUE(viewport(performance) == whole);
}

TEST_F(PerformanceSceneTest, LooksFollowTheOutletsAndTheWidth)
{
    for (const QSize size : {QSize(360, 640), QSize(768, 1024)}) {
        PCMViewController& performance = openPerformance(size);
        QQuickItem* const card = stage.item("chartCard");
        ASSERT_NE(card, nullptr);
        EXPECT_GE(card->height(), 360);
        EXPECT_LE(card->width(), 720);
        EXPECT_NE(chart(), nullptr);
        EXPECT_TRUE(stage.items("Spinner").empty());
        performance.startLoadingIndicators();
        EXPECT_EQ(chart(), nullptr);
        EXPECT_EQ(stage.items("Spinner").size(), 4U);
        EXPECT_NE(text("Fetching performance data..."), nullptr);
        EXPECT_EQ(text("16.00"), nullptr);
    }
    Appearance::shared().overrideTextScale(2);
    openPerformance({360, 640});
    EXPECT_GT(text("6.50")->mapToScene({}).y(), text("12.00")->mapToScene({}).y()) << "stacked";
}

} // namespace
} // namespace lodestar::scenes
