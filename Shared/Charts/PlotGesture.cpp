// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotGesture.h"

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr double startDistance = 5;   // Half of what a flickable page waits for, so that the plot decides first.
constexpr double tapDistance = 32;    // Greatest distance in points between the taps of a double tap.
constexpr quint64 tapTime = 300;      // Milliseconds from the end of the first tap to the end of the second.
constexpr quint64 longestTap = 500;   // Milliseconds; a finger that lay longer did not mean a tap.
constexpr double fastestThrow = 4000; // In points a second.
constexpr double closestFingers = 24; // In points; between closer fingers, the ratio of distances is noise.

double lengthOf(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

} // namespace

void PlotGesture::press(QPointF position, quint64 time, PlotFreedom freedom)
{
    m_state = State::Pressed;
    m_freedom = freedom;
    m_press = m_last = position;
    m_pressTime = time;
    m_speed.start(time);
    m_throw = {};
}

PlotGesture::State PlotGesture::judge(QPointF position) const
{
    const QPointF stroke = position - m_press;
    if (lengthOf(stroke) < startDistance) {
        return State::Pressed;
    }
    const bool sideways = std::abs(stroke.x()) >= std::abs(stroke.y());
    return (sideways ? m_freedom.x : m_freedom.y) ? State::Dragging : State::Refused;
}

std::optional<QPointF> PlotGesture::move(QPointF position, quint64 time)
{
    if (m_state == State::Pressed) {
        m_state = judge(position);
    }
    if (m_state != State::Dragging) {
        return std::nullopt;
    }
    const QPointF by = position - m_last;
    m_speed.step(by, time);
    m_last = position;
    return by;
}

PlotGesture::Tap PlotGesture::release(quint64 time)
{
    const State ended = m_state;
    m_state = State::Idle;
    m_throw = ended == State::Dragging ? m_speed.atRelease(time) : QPointF();
    if (const double speed = lengthOf(m_throw); speed > fastestThrow) {
        m_throw *= fastestThrow / speed;
    }
    if (ended != State::Pressed || time > m_pressTime + longestTap) {
        m_tapTime.reset();
        return Tap::None;
    }
    const bool second = m_tapTime && time <= *m_tapTime + tapTime && lengthOf(m_press - m_tapPosition) < tapDistance;
    m_tapTime = second ? std::optional<quint64>() : time;
    m_tapPosition = m_press;
    return second ? Tap::Double : Tap::Single;
}

std::optional<PlotPinch> PlotGesture::pinch(QPointF first, QPointF second, bool bothAxes)
{
    const bool began = m_state != State::Pinching;
    const QPointF before = m_second - m_first;
    const PlotPinch start{1, 1, (m_first + m_second) / 2, (first + second) / 2};
    m_state = State::Pinching;
    m_tapTime.reset();
    m_first = first;
    m_second = second;
    const QPointF now = second - first;
    if (began) {
        m_alongX = std::abs(now.x()) >= std::abs(now.y());
        return std::nullopt;
    }
    PlotPinch pinch = start;
    const double factor = std::max(lengthOf(now), closestFingers) / std::max(lengthOf(before), closestFingers);
    pinch.factorX = bothAxes || m_alongX ? factor : 1;
    pinch.factorY = bothAxes || !m_alongX ? factor : 1;
    return pinch;
}

void PlotGesture::endPinch(QPointF remaining, quint64 time, PlotFreedom freedom)
{
    press(remaining, time, freedom);
    m_state = freedom.x || freedom.y ? State::Dragging : State::Refused;
}

} // namespace lodestar
