// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieGesture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lodestar
{
namespace
{

constexpr double slack = 10;         // Beside the ring, since a fingertip is wider than its point.
constexpr double startDistance = 5;  // Half of what a flickable page waits for: the pie has to decide before it.
constexpr double flickSpeed = 900;   // Points a second.
constexpr double steepness = 2;      // Vertical to horizontal, from which a stroke counts as vertical.
constexpr quint64 restTime = 80;     // A finger that lay still this long before it left throws nothing.
constexpr double fastestSpin = 1440; // Degrees a second: four turns.

double lengthOf(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

double secondsBetween(quint64 from, quint64 to)
{
    return static_cast<double>(std::max<quint64>(to > from ? to - from : 0, 1)) / 1000;
}

} // namespace

double turnBetween(QPointF from, QPointF to)
{
    const double cross = from.x() * to.y() - from.y() * to.x();
    return std::atan2(cross, QPointF::dotProduct(from, to)) * 180 / std::numbers::pi;
}

void PieGesture::press(QPointF position, quint64 time, const PieGrip& grip)
{
    m_state = State::Pressed;
    m_grip = grip;
    m_press = m_last = position;
    m_pressTime = m_lastTime = time;
    m_speed = 0;
}

PieGesture::State PieGesture::judge(QPointF position, quint64 time) const
{
    const QPointF stroke = position - m_press;
    const double length = lengthOf(stroke);
    if (length < startDistance) {
        return State::Pressed;
    }
    const QPointF arm = m_press - m_grip.center;
    const double radius = lengthOf(arm);
    if (radius < std::max(m_grip.innerRadius - slack, 1.0) || radius > m_grip.outerRadius + slack) {
        return State::Refused;
    }
    const bool vertical = std::abs(stroke.y()) > steepness * std::abs(stroke.x());
    if (vertical && length / secondsBetween(m_pressTime, time) > flickSpeed) {
        return State::Refused;
    }
    const double across = std::abs(QPointF::dotProduct(stroke, arm)) / radius;
    const double along = std::abs(stroke.x() * arm.y() - stroke.y() * arm.x()) / radius;
    return along > across ? State::Turning : State::Refused;
}

std::optional<double> PieGesture::move(QPointF position, quint64 time)
{
    if (m_state == State::Pressed) {
        m_state = judge(position, time);
    }
    if (m_state != State::Turning) {
        return std::nullopt;
    }
    const double turn = turnBetween(m_last - m_grip.center, position - m_grip.center);
    const double speed = turn / secondsBetween(m_lastTime, time);
    // Smoothed: the last event before a finger leaves is often a stray one.
    m_speed = m_lastTime == m_pressTime ? speed : 0.6 * speed + 0.4 * m_speed;
    m_last = position;
    m_lastTime = time;
    return turn;
}

double PieGesture::release(quint64 time)
{
    const bool thrown = m_state == State::Turning && time <= m_lastTime + restTime;
    m_state = State::Idle;
    return thrown ? std::clamp(m_speed, -fastestSpin, fastestSpin) : 0;
}

} // namespace lodestar
