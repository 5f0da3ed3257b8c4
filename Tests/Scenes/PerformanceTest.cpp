// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ManagedSystem.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <QPointingDevice>

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
            Scenes::pcmDataView, {.corvel = demoConsole(), .sysName = "helios-01", .systemID = "any"});
        stage.waitFor([&] { return !performance.chartView()->isHidden(); });
        stage.settle(200);
        return performance;
    }
    QQuickItem* chart() const
    {
        const auto found = stage.items(QStringLiteral("PlotChart"));
        return found.empty() ? nullptr : found.front();
    }
    PlotViewport viewport(PCMViewController& performance) const { return performance.chartView()->viewport(); }
};
TEST_F(PerformanceSceneTest, ChartIsReachedAndWorkedByKeys)
{
    PCMViewController& performance = openPerformance();
    const PlotViewport whole = viewport(performance);
    for (int presses = 0; presses < 8 && !chart()->hasActiveFocus(); ++presses) {
        press(Qt::Key_Tab);
    }
    ASSERT_TRUE(chart()->hasActiveFocus());
    press(Qt::Key_Plus);
    ASSERT_TRUE(stage.waitFor([&] { return viewport(performance).width == whole.width / 2; }));
    const PlotViewport zoomed = viewport(performance);
    press(Qt::Key_Right);
    EXPECT_GT(viewport(performance).x, zoomed.x);
    // The first Escape shows the whole, the second leaves.
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return viewport(performance) == whole; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(stage.waitFor([&] { return top() == &stage.list(); }));
}

TEST_F(PerformanceSceneTest, FromASystemsMenuTheTitleStandsClearOfTheWayBack)
{
    for (const int width : {320, 360, 390, 768}) {
        stage.show({width, 640}, fleet());
        const CorvelRef corvel = demoConsole();
        const auto systems = recordsOf<ManagedSystem>(feedOfType(*corvel, ObjectType::ManagedSystem));
        stage.open(Scenes::managedSystemMenu, {.corvel = corvel, .system = systems.at(2).element()});
        top()->setTitle(QStringLiteral("A managed system with a long name"));
        ASSERT_TRUE(stage.waitFor([this] { return row(0) != nullptr; }));
        stage.settle(200);
        click(row(0));
        ASSERT_TRUE(stage.waitFor([this] { return qobject_cast<PCMViewController*>(top()) != nullptr; }));
        stage.settle(200);
        const std::vector<QQuickItem*> titles = stage.items("TitleView");
        ASSERT_EQ(titles.size(), 1U);
        EXPECT_NE(text("Performance Monitoring"), nullptr) << "a chart of no named system";
        auto& performance = *qobject_cast<PCMViewController*>(top());
        performance.header()->titleLabel()->setText(QStringLiteral("helios").repeated(20));
        stage.settle(50);
        const QQuickItem* const title = text(qPrintable(QStringLiteral("helios").repeated(20)));
        EXPECT_LE(title->property("contentWidth").toDouble(), title->width());
        for (const QQuickItem* const each : stage.buttons()) {
            if (each->mapToScene({}).y() < 52) {
                EXPECT_FALSE(each->mapRectToScene(each->boundingRect())
                                 .intersects(titles.front()->mapRectToScene(titles.front()->boundingRect())))
                    << width;
            }
        }
    }
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
    EXPECT_GE(stage.item("chartCard")->height(), 400) << "a large legend leaves the plot its height";
    Appearance::shared().overrideTextScale({});
    Appearance::shared().overrideMirrored(true);
    openPerformance();
    const auto end = [this](const char* words) { return text(words)->mapToScene({text(words)->width(), 0}).x(); };
    EXPECT_GT(end("Total"), end("Allocated"));
    EXPECT_GT(end("Allocated"), end("Used"));
    EXPECT_DOUBLE_EQ(end("16.00"), end("Total") + 22) << "below its stroke";
}

} // namespace
} // namespace lodestar::scenes
