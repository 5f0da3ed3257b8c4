// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/GestureSpeed.h"

#include <QPointF>

#include <optional>

namespace lodestar
{

/// The directions in which a plot can be moved now.
struct PlotFreedom {
    bool x = false;
    bool y = false;
};

/// How two fingers changed from one event to the next.
struct PlotPinch {
    double factorX = 1;
    double factorY = 1;
    QPointF from; ///< Points between the fingers, before and after.
    QPointF to;
};

/// Tells taps, double taps, drags and pinches over a plot apart. A stroke in a direction in which the plot cannot be
/// moved is left to the page. Positions in points, times in milliseconds.
class PlotGesture
{
public:
    enum class State { Idle, Pressed, Dragging, Pinching, Refused };
    enum class Tap { None, Single, Double };

    void press(QPointF position, quint64 time, PlotFreedom freedom);
    /// Returns how far to move the plot; nothing unless dragging.
    std::optional<QPointF> move(QPointF position, quint64 time);
    /// Ends the gesture. A second tap soon after the first and near it makes a double tap.
    Tap release(quint64 time);
    /// The speed after a drag was released, in points a second; 0 unless the finger was still moving.
    QPointF throwSpeed() const { return m_throw; }
    /// Two fingers are down or moved. Without `bothAxes`, only the axis is zoomed along which the fingers lay at first.
    std::optional<PlotPinch> pinch(QPointF first, QPointF second, bool bothAxes);
    /// One of two fingers has left; the other continues as a drag.
    void endPinch(QPointF remaining, quint64 time, PlotFreedom freedom);
    void cancel() { m_state = State::Idle; }

    State state() const { return m_state; }
    QPointF pressPosition() const { return m_press; }

private:
    State judge(QPointF position) const;

    State m_state = State::Idle;
    PlotFreedom m_freedom;
    QPointF m_press;
    quint64 m_pressTime = 0;
    QPointF m_last;
    GestureSpeed<QPointF> m_speed;
    QPointF m_throw;
    QPointF m_first; ///< The two fingers of a pinch.
    QPointF m_second;
    bool m_alongX = false;
    std::optional<quint64> m_tapTime; ///< Time and place of the last tap; nothing after a double tap.
    QPointF m_tapPosition;
};

} // namespace lodestar
