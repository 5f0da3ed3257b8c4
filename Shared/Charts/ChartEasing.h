// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// How a chart's animation moves between its ends. Screens name an easing by its number, so the order is fixed: linear,
/// then for every family its in, out and in-out form.
enum class ChartEasingOption : int {
    Linear,
    EaseInQuad,
    EaseOutQuad,
    EaseInOutQuad,
    EaseInCubic,
    EaseOutCubic,
    EaseInOutCubic,
    EaseInQuart,
    EaseOutQuart,
    EaseInOutQuart,
    EaseInQuint,
    EaseOutQuint,
    EaseInOutQuint,
    EaseInSine,
    EaseOutSine,
    EaseInOutSine,
    EaseInExpo,
    EaseOutExpo,
    EaseInOutExpo,
    EaseInCirc,
    EaseOutCirc,
    EaseInOutCirc,
    EaseInElastic,
    EaseOutElastic,
    EaseInOutElastic,
    EaseInBack,
    EaseOutBack,
    EaseInOutBack,
    EaseInBounce,
    EaseOutBounce,
    EaseInOutBounce,
};

static_assert(static_cast<int>(ChartEasingOption::EaseInOutQuart) == 9);
static_assert(static_cast<int>(ChartEasingOption::EaseOutBack) == 26);

/// The eased value of a progress from 0 to 1. Exactly 0 at (or before) 0 and exactly 1 at (or after) 1 or when not a
/// number; between them the back and elastic families leave the range. A number outside the list eases linearly.
double ease(ChartEasingOption option, double progress);

/// How far a chart has grown: `x` along its entries (a pie's sweep), `y` in size (a pie's radius). 0 is nothing, 1 is
/// complete; either may leave the range on the way.
struct ChartPhases {
    double x = 1;
    double y = 1;
};

/// A grow-in: durations in seconds, a duration that is not above 0 is complete from the start.
struct ChartAnimation {
    double xDuration = 0;
    double yDuration = 0;
    ChartEasingOption easing = ChartEasingOption::Linear;

    /// The phases after so many seconds.
    ChartPhases phasesAt(double seconds) const;
    /// The longer of the two durations in seconds, never negative.
    double duration() const;
};

} // namespace lodestar
