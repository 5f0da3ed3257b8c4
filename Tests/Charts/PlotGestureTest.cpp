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

TEST(PlotGestureTest, TwoTapsMakeADoubleTapOnlyWhenCloseInTimeAndPlace)
{
    const auto second = [](QPointF position, quint64 time) {
        PlotGesture gesture;
        gesture.press({100, 100}, 1000, {});
        EXPECT_EQ(gesture.release(1050), Tap::Single);
        gesture.press(position, time, {});
        return gesture.release(time + 50);
    };
    EXPECT_EQ(second({104, 98}, 1150), Tap::Double);
    EXPECT_EQ(second({104, 98}, 1600), Tap::Single);
    EXPECT_EQ(second({160, 98}, 1150), Tap::Single);

    PlotGesture gesture;
    for (const Tap expected : {Tap::Single, Tap::Double, Tap::Single, Tap::Double}) {
        gesture.press({100, 100}, 0, {});
        EXPECT_EQ(gesture.release(10), expected) << "a third tap begins anew";
    }
    gesture.press({100, 100}, 0, {});
    EXPECT_EQ(gesture.release(900), Tap::None) << "a long press is no tap";
}

TEST(PlotGestureTest, PinchesInBothAxesOrTheOneTheFingersLieAlong)
{
    PlotGesture gesture;
    gesture.press({100, 100}, 0, {});
    EXPECT_FALSE(gesture.pinch({100, 100}, {200, 110}, true));
    const auto both = gesture.pinch({50, 100}, {250, 120}, true);
    ASSERT_TRUE(both);
    EXPECT_NEAR(both->factorX, 2, 0.01);
    EXPECT_EQ(both->factorX, both->factorY);
    EXPECT_EQ(both->from, QPointF(150, 105));
    EXPECT_EQ(both->to, QPointF(150, 110));

    gesture.cancel();
    (void)gesture.pinch({100, 100}, {200, 110}, false);
    const auto along = gesture.pinch({100, 100}, {100, 400}, false);
    ASSERT_TRUE(along);
    EXPECT_GT(along->factorX, 2.5) << "the axis holds however the fingers turn";
    EXPECT_EQ(along->factorY, 1);
    const auto together = gesture.pinch({100, 100}, {100, 100}, false);
    ASSERT_TRUE(together);
    EXPECT_GT(together->factorX, 0.05) << "fingers in one point do not shrink the plot to nothing";

    gesture.endPinch({100, 100}, 50, {true, true});
    EXPECT_EQ(gesture.move({103, 100}, 60), QPointF(3, 0)) << "the finger that stays goes on dragging";
    EXPECT_EQ(gesture.release(300), Tap::None);
}

} // namespace
} // namespace lodestar
