// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ManagedSystem.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <cstdlib>

namespace lodestar::scenes
{
namespace
{

constexpr double legendHeight = 62;

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
    /// How many columns of the plot a line of that colour passes through.
    int columnsWith(const QColor& color) const
    {
        const QImage picture = stage.grab();
        const double ratio = static_cast<double>(picture.width()) / stage.window().width();
        // Above the legend, whose strokes have the same colours.
        const QRectF plot = chart()->mapRectToScene({0, 0, chart()->width(), chart()->height() - legendHeight});
        int columns = 0;
        for (int x = qRound(plot.left() * ratio); x < qRound(plot.right() * ratio); ++x) {
            for (int y = qRound(plot.top() * ratio); y < qRound(plot.bottom() * ratio); ++y) {
                // By hue, since a thin line between two rows of pixels is pale in both.
                const QColor found = picture.pixelColor(x, y);
                if (found.hsvSaturation() > 60 && std::abs(found.hsvHue() - color.hsvHue()) < 12) {
                    ++columns;
                    break;
                }
            }
        }
        return columns;
    }
    /// Waits for the three figures, which a line each goes with.
    void expectFigures(const char* total, const char* allocated, const char* used) const
    {
        ASSERT_TRUE(waitForText(total));
        stage.settle();
        EXPECT_NE(text(allocated), nullptr);
        EXPECT_NE(text(used), nullptr);
        for (const QColor color : {QColor(0xD9, 0x7A, 0x00), QColor(0x00, 0x8B, 0x11), QColor(0x00, 0x30, 0x8B)}) {
            EXPECT_GT(columnsWith(color), 280) << color.name().toStdString();
        }
    }
};

TEST_F(PerformanceSceneTest, ProcessorsThenMemoryFromASystemsActionSheet)
{
    stage.show({390, 844}, fleet());
    stage.openList(Scenes::managedSystemsView, demoConsole());
    click(row(0));
    ASSERT_TRUE(waitForButton("Performance Monitoring"));
    stage.settle(200);
    click(button("Performance Monitoring"));
    expectFigures("16.00", "12.00", "6.50");
    EXPECT_NE(text("helios-01"), nullptr) << "the title is the system's name";
    click(button("Memory"));
    expectFigures("262.14", "10.24", "250.00");
    EXPECT_EQ(text("16.00"), nullptr);
    // The choice by keyboard, from the segment that has the focus.
    press(Qt::Key_Left);
    ASSERT_TRUE(waitForText("16.00"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitForText("helios-02"));
}

TEST_F(PerformanceSceneTest, ChartIsReachedAndWorkedByKeys)
{
    PlotChartView& view = *openPerformance().chartView();
    const PlotViewport whole = view.viewport();
    for (int presses = 0; presses < 8 && !chart()->hasActiveFocus(); ++presses) {
        press(Qt::Key_Tab);
    }
    ASSERT_TRUE(chart()->hasActiveFocus());
    press(Qt::Key_Plus);
    ASSERT_TRUE(stage.waitFor([&] { return view.viewport().width == whole.width / 2; }));
    const PlotViewport zoomed = view.viewport();
    press(Qt::Key_Right);
    EXPECT_GT(view.viewport().x, zoomed.x);
    // The first Escape shows the whole, the second leaves.
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return view.viewport() == whole; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(stage.waitFor([&] { return top() == &stage.list(); }));
}

TEST_F(PerformanceSceneTest, FromASystemsMenuTheTitleStandsClearOfTheWayBack)
{
    for (const int width : {320, 390, 768}) {
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
        const QString longName = QStringLiteral("helios").repeated(20);
        qobject_cast<PCMViewController*>(top())->header()->titleLabel()->setText(longName);
        stage.settle(50);
        EXPECT_LE(text(longName)->property("contentWidth").toDouble(), text(longName)->width());
        const QRectF title = titles.front()->mapRectToScene(titles.front()->boundingRect());
        for (const QQuickItem* const each : stage.buttons()) {
            const QRectF place = each->mapRectToScene(each->boundingRect());
            EXPECT_FALSE(place.top() < 52 && place.intersects(title)) << width;
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
