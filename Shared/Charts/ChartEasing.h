// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// How a chart's animation moves from its start to its end. Screens name an easing by its number: 0 is linear; then
/// come the in, out and in-out forms of quad, cubic, quart, quint, sine, expo, circ, elastic, back and bounce.
enum class ChartEasingOption : int { Linear = 0, EaseOutCubic = 5, EaseInOutQuart = 9, EaseOutBack = 26, Last = 30 };

/// The eased value of a progress from 0 to 1. The result is exactly 0 for a progress of 0 or less, and exactly 1 for a
/// progress of 1 or more or one that is not a number. In between, the back and elastic families leave the range of 0 to
/// 1. An option outside the list eases linearly.
double ease(ChartEasingOption option, double progress);

/// How far a chart has grown: `x` along its entries (a pie's sweep), `y` in size (a pie's radius). 0 is nothing and 1
/// is complete; both may leave that range during an animation.
struct ChartPhases {
    double x = 1;
    double y = 1;
};

/// The animation with which a chart grows in. Durations are seconds; a direction whose duration is not above 0 is
/// complete from the start.
struct ChartAnimation {
    double xDuration = 0;
    double yDuration = 0;
    ChartEasingOption easing = ChartEasingOption::Linear;

    /// The phases when so many seconds have passed.
    ChartPhases phasesAt(double seconds) const;
    /// The longer of the two durations in seconds, never negative.
    double duration() const;
};

} // namespace lodestar
