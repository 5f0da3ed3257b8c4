// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/GestureSpeed.h"

#include <QPointF>

#include <optional>

namespace lodestar
{

/// The ring that a finger can take hold of, in points.
struct PieGrip {
    QPointF center;
    double innerRadius = 0;
    double outerRadius = 0;
};

/// Tells one finger's tap, turn and scroll apart. A turn starts on the ring (or a finger's slack beside it) and goes
/// along it rather than across; a fast and mostly vertical stroke is left to the page even there, since that is how
/// people leave a screen they are not looking at. Positions in points, times in milliseconds.
class PieGesture
{
public:
    enum class State { Idle, Pressed, Turning, Refused };

    void press(QPointF position, quint64 time, const PieGrip& grip);
    /// Degrees to turn the pie by, clockwise; nothing unless turning.
    std::optional<double> move(QPointF position, quint64 time);
    /// Ends the gesture; the speed to go on with in degrees a second, 0 unless it was turning and still moving.
    double release(quint64 time);
    void cancel() { m_state = State::Idle; }

    State state() const { return m_state; }
    /// Released now, this is a tap on `pressPosition`.
    bool isTap() const { return m_state == State::Pressed; }
    QPointF pressPosition() const { return m_press; }

private:
    State judge(QPointF position, quint64 time) const;

    State m_state = State::Idle;
    PieGrip m_grip;
    QPointF m_press;
    quint64 m_pressTime = 0;
    QPointF m_last;
    GestureSpeed<double> m_speed;
};

/// Degrees from one direction to another by the shorter way, clockwise positive, -180 to 180.
double turnBetween(QPointF from, QPointF to);

} // namespace lodestar
