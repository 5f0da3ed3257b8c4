// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieGesture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lodestar
{
namespace
{

constexpr double slack = 10;         // Points beside the ring; a fingertip is wider than the point it presses.
constexpr double startDistance = 5;  // Half of what a flickable page waits for, so that the pie decides first.
constexpr double flickSpeed = 900;   // In points a second.
constexpr double steepness = 2;      // Ratio of vertical to horizontal way from which a stroke counts as vertical.
constexpr double fastestSpin = 1440; // In degrees a second: four turns.

double lengthOf(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
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
    m_pressTime = time;
    m_speed.start(time);
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
    m_speed.step(turn, time);
    m_last = position;
    return turn;
}

double PieGesture::release(quint64 time)
{
    const double speed = m_state == State::Turning ? m_speed.atRelease(time) : 0;
    m_state = State::Idle;
    return std::clamp(speed, -fastestSpin, fastestSpin);
}

} // namespace lodestar
