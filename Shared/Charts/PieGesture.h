// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/GestureSpeed.h"

#include <QPointF>

#include <optional>

namespace lodestar
{

/// The ring by which a finger can turn the pie, in points.
struct PieGrip {
    QPointF center;
    double innerRadius = 0;
    double outerRadius = 0;
};

/// Tells one finger's taps, turns and scrolls apart. A turn starts on the ring (or within a finger's slack beside it)
/// and goes along it rather than across. A fast and mostly vertical stroke is left to the page even on the ring,
/// because people leave a screen that way without looking. Positions in points, times in milliseconds.
class PieGesture
{
public:
    enum class State { Idle, Pressed, Turning, Refused };

    void press(QPointF position, quint64 time, const PieGrip& grip);
    /// Returns the degrees to turn the pie by, clockwise; nothing unless turning.
    std::optional<double> move(QPointF position, quint64 time);
    /// Ends the gesture. Returns the speed at which the pie goes on, in degrees a second; 0 unless the finger was
    /// turning the pie and still moving.
    double release(quint64 time);
    void cancel() { m_state = State::Idle; }

    State state() const { return m_state; }
    /// Whether a release now would be a tap on `pressPosition`.
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

/// Degrees from one direction to another the shorter way, -180 to 180; clockwise is positive.
double turnBetween(QPointF from, QPointF to);

} // namespace lodestar
