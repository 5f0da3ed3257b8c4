// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <algorithm>

namespace lodestar
{

/// Seconds between two times in milliseconds; at least one millisecond, because two events may carry the same time.
inline double secondsBetween(quint64 from, quint64 to)
{
    return static_cast<double>(to > from ? to - from : 1) / 1000;
}

/// Measures how fast a finger goes, in units a second, from the steps that it takes. A step is in points for `QPointF`
/// and in degrees for `double`. Times are in milliseconds.
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
        // The speed is smoothed because the last event before a finger leaves is often a stray one.
        m_speed = m_hasMoved ? 0.6 * speed + 0.4 * m_speed : speed;
        m_hasMoved = true;
        m_time = time;
    }
    /// The speed at which a finger leaves; 0 for a finger that lay still before it left.
    Way atRelease(quint64 time) const { return time <= m_time + restTime ? m_speed : Way{}; }

private:
    static constexpr quint64 restTime = 80;

    quint64 m_time = 0;
    Way m_speed{};
    bool m_hasMoved = false;
};

} // namespace lodestar
