// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <optional>

namespace lodestar
{

/// When the next refresh is due. A value without a clock: callers say what time it is, by a clock that nobody sets and
/// that runs on while the device sleeps. An interval counts from the end of a refresh, so after a sleep of any length
/// one refresh is due and not one for each interval that was missed.
class WatchSchedule
{
public:
    using Moment = std::chrono::steady_clock::time_point;
    /// The device's network is not there at once when the device wakes.
    static constexpr std::chrono::seconds afterWaking{10};
    /// How often `notice` is to be called at least.
    static constexpr std::chrono::seconds step{30};

    /// Counts from now on, unless it counts already with another interval. None: counts no longer.
    void setInterval(std::optional<std::chrono::minutes> interval, Moment now);
    /// A refresh of the whole fleet has ended.
    void fleetWasRead(Moment now) { m_from = now; }
    /// Says what time it is. A gap tells that the device was asleep.
    void notice(Moment now);
    std::optional<Moment> due() const;

private:
    std::optional<std::chrono::minutes> m_interval;
    Moment m_from;
    Moment m_noticed;
    Moment m_notBefore;
};

} // namespace lodestar
