// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

namespace lodestar
{

/// Tells whether a thread that alternates between waiting and working has had almost nothing to do lately. One thread.
class Idleness
{
public:
    using Clock = std::chrono::steady_clock;

    /// Call when new work comes: forgets everything before.
    void reset(Clock::time_point now);
    void waited(Clock::time_point from, Clock::time_point until);
    bool isIdle() const { return m_idlePeriods > 0; }
    /// Whether the thread has been idle for so long that the network must be slow: a server with a busy processor
    /// answers sooner.
    bool isIdleForLong() const { return m_idlePeriods >= longPeriods; }

    /// How long a thread is watched before it is called idle.
    static constexpr std::chrono::milliseconds period{20};
    static constexpr int longPeriods = 6;

private:
    Clock::time_point m_start{};
    Clock::duration m_waited{};
    int m_idlePeriods = 0; ///< idle periods in a row, up to now
};

} // namespace lodestar
