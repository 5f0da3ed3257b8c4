// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <algorithm>

namespace lodestar
{

/// Seconds from one time in milliseconds to another, at least one millisecond: clocks of pointing devices stand.
inline double secondsBetween(quint64 from, quint64 to)
{
    return static_cast<double>(to > from ? to - from : 1) / 1000;
}

/// How fast a finger goes, in units a second, from the steps that it takes: points for `QPointF`, degrees for `double`.
/// Times in milliseconds.
template <typename Way>
class GestureSpeed
{
public:
    void start(quint64 time)
    {
        m_time = time;
        m_speed = {};
        m_hasMoved = false;
    }
    void step(const Way& by, quint64 time)
    {
        const Way speed = by / secondsBetween(m_time, time);
        // Smoothed: the last event before a finger leaves is often a stray one.
        m_speed = m_hasMoved ? 0.6 * speed + 0.4 * m_speed : speed;
        m_hasMoved = true;
        m_time = time;
    }
    /// The speed with which a finger leaves; a finger that lay still before it left throws nothing.
    Way atRelease(quint64 time) const { return time <= m_time + restTime ? m_speed : Way{}; }

private:
    static constexpr quint64 restTime = 80;

    quint64 m_time = 0;
    Way m_speed{};
    bool m_hasMoved = false;
};

} // namespace lodestar
