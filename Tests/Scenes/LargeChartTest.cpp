// SPDX-License-Identifier: Apache-2.0
#include "Tests/Scenes/SceneTest.h"
#include "Views/ManagedSystems/PCM/LargeChartViewController.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

namespace lodestar::scenes
{
namespace
{

class LargeChartSceneTest : public SceneTest
{
protected:
    /// Opens the chart as a person does, from the bar of the performance screen.
    LargeChartViewController& openChart(QSize size)
    {
        stage.show(size, fleet());
        auto& performance = *stage.open<PCMViewController>(
            Scenes::pcmDataView, {.corvel = demoConsole(), .sysName = "helios-01", .systemID = "any"});
        stage.waitFor([&] { return !performance.chartView()->isHidden(); });
        EXPECT_TRUE(waitForButton("Large Chart"));
        stage.settle(200);
        click(button("Large Chart"));
        stage.waitFor([this] { return chart() != nullptr; });
        stage.settle(200);
        return *qobject_cast<LargeChartViewController*>(top());
    }
    QQuickItem* chart() const
    {
        const auto found = stage.items(QStringLiteral("ReadableChart"));
        return found.empty() ? nullptr : found.front();
    }
    /// A point of the plot, by its share of the time.
    QPoint spot(double share) const
    {
        const QRectF plot = chart()->property("plotArea").toRectF();
        return chart()->mapToScene({plot.left() + share * plot.width(), plot.center().y()}).toPoint();
    }
    /// Whether the plate is seen, within its card.
    bool plateIsSeen() const
    {
        const QQuickItem* const plate = stage.item("chartPlate");
        const QQuickItem* const card = stage.item("largeChartCard");
        return plate != nullptr && plate->isVisible() && plate->x() >= 0 &&
               plate->x() + plate->width() <= card->width();
    }
};

TEST_F(LargeChartSceneTest, TheChartTakesTheScreenAndIsReadByMouseAndKeys)
{
    LargeChartViewController& screen = openChart({844, 390});
    EXPECT_TRUE(stage.tabs().isBarHidden());
    EXPECT_TRUE(stage.items("TabBar").empty());
    EXPECT_GE(stage.item("largeChartCard")->height(), 240);
    EXPECT_FALSE(plateIsSeen());
    for (const double share : {0.01, 0.5, 0.99}) {
        QTest::mouseMove(&stage.window(), spot(share));
        ASSERT_TRUE(stage.waitFor([&] { return plateIsSeen(); })) << share;
        EXPECT_NE(text(screen.readTime()), nullptr);
    }
    QTest::mouseMove(&stage.window(), {400, 20});
    ASSERT_TRUE(stage.waitFor([this] { return !plateIsSeen(); }));

    for (int presses = 0; presses < 12 && !chart()->hasActiveFocus(); ++presses) {
        press(Qt::Key_Tab);
    }
    ASSERT_TRUE(chart()->hasActiveFocus());
    press(Qt::Key_End);
    EXPECT_EQ(screen.readValues(), QStringList({"16.00", "12.00", "6.50"}));
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(chart());
    EXPECT_EQ(spoken->text(QAccessible::Description), screen.readText());
    EXPECT_TRUE(spoken->text(QAccessible::Name).startsWith("Total, 16.00 all along"));

    press(Qt::Key_Plus);
    ASSERT_TRUE(waitForButton("Show all"));
    click(button("Show all"));
    ASSERT_TRUE(stage.waitFor([&] { return !screen.chartView()->isZoomed(); }));
    EXPECT_EQ(button("Show all"), nullptr);
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([this] { return qobject_cast<PCMViewController*>(top()) != nullptr; }));
    EXPECT_FALSE(stage.tabs().isBarHidden());
}

TEST_F(LargeChartSceneTest, ChipsSwitchSeriesAndTheSummaryFollowsTextSizeAndDirection)
{
    LargeChartViewController& screen = openChart({390, 844});
    EXPECT_LT(stage.item("largeChartCard")->mapToScene({0, stage.item("largeChartCard")->height()}).y(), 700)
        << "upright, the summary is seen below";
    ASSERT_NE(button("Total"), nullptr);
    EXPECT_EQ(spokenAs(button("Total")), "Total, 16.00");
    click(button("Total"));
    EXPECT_EQ(screen.drawnSeries(), QList<int>({1, 2}));
    click(stage.item("barsChip"));
    EXPECT_EQ(screen.chartView()->data().barDataSets.size(), 1);
    click(button("Memory"));
    EXPECT_EQ(screen.chartView()->data().lineDataSets[0].label, "Memory Used");
    EXPECT_NE(text("262.14"), nullptr) << "in the summary";
    click(button("Share"));
    ASSERT_TRUE(waitForButton("Save points as CSV"));
    press(Qt::Key_Escape);

    Appearance::shared().overrideTextScale(2);
    openChart({360, 640});
    QTest::mouseMove(&stage.window(), spot(0.5));
    EXPECT_TRUE(stage.waitFor([this] { return plateIsSeen(); }));
    EXPECT_GT(text("Highest")->mapToScene({}).y(), text("Lowest")->mapToScene({}).y()) << "one series a card";
    Appearance::shared().overrideTextScale({});
    Appearance::shared().overrideMirrored(true);
    openChart({390, 844});
    EXPECT_GT(text("Lowest")->mapToScene({}).x(), text("Last")->mapToScene({}).x());
    QTest::mouseMove(&stage.window(), spot(0.1));
    ASSERT_TRUE(stage.waitFor([this] { return plateIsSeen(); }));
    EXPECT_LT(stage.item("chartPlate")->mapToScene({}).x(), 150) << "time runs to the right";
}

} // namespace
} // namespace lodestar::scenes
