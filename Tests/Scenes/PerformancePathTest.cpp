// SPDX-License-Identifier: Apache-2.0
#include "Tests/Scenes/SceneTest.h"
#include "Views/Dashboard/MSOverViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <cstdlib>

namespace lodestar::scenes
{
namespace
{

constexpr double legendHeight = 62;

/// A person's ways to the performance of a system, with the pointer.
class PerformancePathTest : public SceneTest
{
protected:
    void openSystems()
    {
        stage.show({390, 844}, fleet());
        stage.openList(Scenes::managedSystemsView, demoConsole());
    }

    /// How many columns of the plot a line of that colour passes through.
    int columnsWith(const QColor& color) const
    {
        const auto charts = stage.items(QStringLiteral("PlotChart"));
        if (charts.empty()) {
            return 0;
        }
        const QImage picture = stage.grab();
        const double ratio = static_cast<double>(picture.width()) / stage.window().width();
        // Above the legend, whose strokes have the same colours.
        const QRectF plot =
            charts.front()->mapRectToScene({0, 0, charts.front()->width(), charts.front()->height() - legendHeight});
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
    void expectLines() const
    {
        for (const QColor color : {QColor(0xD9, 0x7A, 0x00), QColor(0x00, 0x8B, 0x11), QColor(0x00, 0x30, 0x8B)}) {
            EXPECT_GT(columnsWith(color), 280) << color.name().toStdString();
        }
    }

    void seeProcessorsAndSwitchToMemory()
    {
        ASSERT_TRUE(stage.waitFor([this] { return text("16.00") != nullptr; }));
        ASSERT_NE(qobject_cast<PCMViewController*>(top()), nullptr);
        stage.settle();
        EXPECT_NE(text("12.00"), nullptr);
        EXPECT_NE(text("6.50"), nullptr);
        expectLines();
        const QImage processors = stage.grab();
        click(button("Memory"));
        ASSERT_TRUE(stage.waitFor([this] { return text("262.14") != nullptr; }));
        EXPECT_NE(text("10.24"), nullptr);
        EXPECT_EQ(text("16.00"), nullptr);
        EXPECT_NE(stage.grab(), processors);
        expectLines();
    }
};

TEST_F(PerformancePathTest, FromASystemsActionSheet)
{
    openSystems();
    click(row(0));
    ASSERT_TRUE(stage.waitFor([this] { return button("Performance Monitoring") != nullptr; }));
    stage.settle(200);
    click(button("Performance Monitoring"));
    seeProcessorsAndSwitchToMemory();
    EXPECT_NE(text("helios-01"), nullptr) << "the title is the system's name";
    // The choice by keyboard, from the segment that has the focus.
    press(Qt::Key_Left);
    ASSERT_TRUE(stage.waitFor([this] { return text("16.00") != nullptr; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(stage.waitFor([this] { return text("helios-02") != nullptr; }));
}
} // namespace
} // namespace lodestar::scenes
