// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotGesture.h"

#include <gtest/gtest.h>

namespace lodestar
{
namespace
{

using State = PlotGesture::State;
using Tap = PlotGesture::Tap;

State verdict(PlotFreedom freedom, QPointF stroke)
{
    PlotGesture gesture;
    gesture.press({100, 100}, 0, freedom);
    (void)gesture.move(QPointF(100, 100) + stroke, 16);
    return gesture.state();
}

TEST(PlotGestureTest, StrokesThatThePlotCannotFollowAreThePages)
{
    EXPECT_EQ(verdict({false, false}, {0, 20}), State::Refused);
    EXPECT_EQ(verdict({false, false}, {20, 0}), State::Refused);
    EXPECT_EQ(verdict({true, false}, {20, 5}), State::Dragging);
    EXPECT_EQ(verdict({true, false}, {5, 20}), State::Refused) << "not zoomed upwards";
    EXPECT_EQ(verdict({true, true}, {5, 20}), State::Dragging);
    EXPECT_EQ(verdict({true, true}, {2, 2}), State::Pressed);
}

TEST(PlotGestureTest, DragsWithTheFingerAndGoesOnAtItsSpeed)
{
    PlotGesture gesture;
    gesture.press({100, 100}, 0, {true, true});
    EXPECT_EQ(gesture.move({110, 100}, 20), QPointF(10, 0));
    EXPECT_EQ(gesture.move({120, 96}, 40), QPointF(10, -4));
    EXPECT_EQ(gesture.release(50), Tap::None);
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
} // namespace
} // namespace lodestar
