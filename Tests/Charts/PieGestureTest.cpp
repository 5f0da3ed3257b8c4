// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieGesture.h"

#include <gtest/gtest.h>

namespace lodestar
{
namespace
{

const PieGrip grip{{100, 100}, 50, 90};
using State = PieGesture::State;

/// The verdict over one stroke of so many milliseconds.
State verdict(QPointF from, QPointF to, quint64 time = 100)
{
    PieGesture gesture;
    gesture.press(from, 1000, grip);
    (void)gesture.move(to, 1000 + time);
    return gesture.state();
}

TEST(PieGestureTest, TellsTurnsFromScrollsAndTaps)
{
    EXPECT_EQ(verdict({170, 100}, {170, 120}), State::Turning) << "along the ring";
    EXPECT_EQ(verdict({100, 30}, {120, 32}), State::Turning);
    EXPECT_EQ(verdict({100, 170}, {100, 190}), State::Refused) << "across the ring";
    EXPECT_EQ(verdict({170, 100}, {190, 104}), State::Refused);
    EXPECT_EQ(verdict({100, 110}, {130, 110}), State::Refused) << "from the hole";
    EXPECT_EQ(verdict({100, 205}, {130, 205}), State::Refused) << "from outside";
    EXPECT_EQ(verdict({100, 193}, {130, 193}), State::Turning) << "just beside the ring";
    EXPECT_EQ(verdict({170, 100}, {170, 120}, 10), State::Refused) << "a fast vertical stroke scrolls";
    EXPECT_EQ(verdict({100, 30}, {120, 30}, 10), State::Turning) << "a fast sideways one does not";
    EXPECT_EQ(verdict({170, 100}, {172, 102}), State::Pressed) << "still a tap";
}
TEST(PieGestureTest, TurnsWithTheFingerAndGoesOnAtItsSpeed)
{
    PieGesture gesture;
    gesture.press({170, 100}, 0, grip);
    double turned = 0;
    turned += gesture.move({149.5, 149.5}, 250).value_or(0);
    turned += gesture.move({100, 170}, 500).value_or(0);
    EXPECT_NEAR(turned, 90, 0.01) << "a quarter clockwise";
    EXPECT_NEAR(gesture.release(510), 180, 1);

    gesture.press({30, 100}, 0, grip);
    EXPECT_LT(gesture.move({32, 130}, 250).value_or(0), 0) << "down on the left is counter-clockwise";
    EXPECT_EQ(gesture.release(400), 0) << "a finger that rested throws nothing";
}
} // namespace
} // namespace lodestar
