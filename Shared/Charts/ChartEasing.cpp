// SPDX-License-Identifier: Apache-2.0
#include "Charts/ChartEasing.h"

#include <QEasingCurve>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

/// Qt lists the same families in the same order, but with a fourth form (out-in) of each.
QEasingCurve::Type curveType(ChartEasingOption option)
{
    const int number = static_cast<int>(option);
    if (number < 1 || number > static_cast<int>(ChartEasingOption::Last)) {
        return QEasingCurve::Linear;
    }
    const int family = (number - 1) / 3;
    const int form = (number - 1) % 3;
    return static_cast<QEasingCurve::Type>(QEasingCurve::InQuad + 4 * family + form);
}

double phase(ChartEasingOption easing, double seconds, double duration)
{
    return duration > 0 && std::isfinite(duration) ? ease(easing, seconds / duration) : 1.0;
}

} // namespace

double ease(ChartEasingOption option, double progress)
{
    if (progress <= 0) {
        return 0;
    }
    if (!(progress < 1)) {
        return 1;
    }
    return QEasingCurve(curveType(option)).valueForProgress(progress);
}

ChartPhases ChartAnimation::phasesAt(double seconds) const
{
    return {phase(easing, seconds, xDuration), phase(easing, seconds, yDuration)};
}

double ChartAnimation::duration() const
{
    const auto valid = [](double value) { return std::isfinite(value) ? std::max(value, 0.0) : 0.0; };
    return std::max(valid(xDuration), valid(yDuration));
}

} // namespace lodestar
