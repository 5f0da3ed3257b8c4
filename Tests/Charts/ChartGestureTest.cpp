// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieGesture.h"
#include "Charts/PlotGesture.h"

#include <gtest/gtest.h>

namespace lodestar
{

TEST(ChartGestureTest, APieTellsTurnsFromScrollsAndTaps)
{
    using State = PieGesture::State;
    struct Stroke {
        QPointF from;
        QPointF to;
        State verdict;
        const char* what;
        quint64 time = 100;
    };
    const PieGrip grip{{100, 100}, 50, 90};
    for (const Stroke& stroke : std::initializer_list<Stroke>{
             {{170, 100}, {170, 120}, State::Turning, "along the ring"},
             {{100, 170}, {100, 190}, State::Refused, "across the ring"},
             {{100, 110}, {130, 110}, State::Refused, "from the hole"},
             {{100, 205}, {130, 205}, State::Refused, "from outside"},
             {{100, 193}, {130, 193}, State::Turning, "just beside the ring"},
             {{170, 100}, {170, 120}, State::Refused, "a fast vertical stroke scrolls", 10},
             {{100, 30}, {120, 30}, State::Turning, "a fast sideways one does not", 10},
             {{170, 100}, {172, 102}, State::Pressed, "still a tap"},
         }) {
        PieGesture gesture;
        gesture.press(stroke.from, 1000, grip);
        (void)gesture.move(stroke.to, 1000 + stroke.time);
        EXPECT_EQ(gesture.state(), stroke.verdict) << stroke.what;
    }
    PieGesture gesture;
    gesture.press({170, 100}, 0, grip);
    double turned = gesture.move({149.5, 149.5}, 250).value_or(0);
    turned += gesture.move({100, 170}, 500).value_or(0);
    EXPECT_NEAR(turned, 90, 0.01) << "a quarter clockwise";
    EXPECT_NEAR(gesture.release(510), 180, 1);
    gesture.press({30, 100}, 0, grip);
    EXPECT_LT(gesture.move({32, 130}, 250).value_or(0), 0) << "down on the left is counter-clockwise";
    EXPECT_EQ(gesture.release(400), 0) << "a finger that rested throws nothing";
}

TEST(ChartGestureTest, APlotFollowsTheFingerAndGoesOnAtItsSpeed)
{
    PlotGesture gesture;
    gesture.press({100, 100}, 0, {true, true});
    EXPECT_EQ(gesture.move({110, 100}, 20), QPointF(10, 0));
    EXPECT_EQ(gesture.move({120, 96}, 40), QPointF(10, -4));
    EXPECT_EQ(gesture.release(50), PlotGesture::Tap::None);
    EXPECT_NEAR(gesture.throwSpeed().x(), 500, 1);
    gesture.press({100, 100}, 1000, {true, true});
    (void)gesture.move({150, 100}, 1010);
    (void)gesture.release(1200);
    EXPECT_EQ(gesture.throwSpeed(), QPointF()) << "a finger that rested throws nothing";
    gesture.press({100, 100}, 2000, {true, true});
    (void)gesture.move({900, 100}, 2000);
    (void)gesture.release(2000);
    EXPECT_LE(gesture.throwSpeed().x(), 4000) << "standing clocks";
}

} // namespace lodestar
