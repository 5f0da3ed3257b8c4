// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <unordered_map>

namespace lodestar::simulator
{

/// Watches descriptors and timers on one thread. Nothing here is thread-safe.
class EventLoop
{
public:
    using Clock = std::chrono::steady_clock;
    /// Identifies a watched descriptor; a value is never used twice.
    using Watch = std::uint64_t;

    EventLoop();
    ~EventLoop();
    EventLoop(const EventLoop&) = delete;
    EventLoop& operator=(const EventLoop&) = delete;

    /// Calls `onEvents` with the epoll events for as long as they last. Throws `std::system_error`.
    Watch watch(int descriptor, std::uint32_t events, std::function<void(std::uint32_t)> onEvents);
    void change(Watch watch, std::uint32_t events);
    /// Call it before closing the descriptor; a callback may call it, too. Events that were already reported and the
    /// watch's timers are dropped.
    void forget(Watch watch);
    /// Calls `then` once after the delay, unless the watch is forgotten before.
    void after(std::chrono::milliseconds delay, Watch watch, std::function<void()> then);

    /// Runs until `stop` is called.
    void run();
    void stop() { m_running = false; }

private:
    struct Entry {
        int descriptor;
        std::uint32_t events;
        std::function<void(std::uint32_t)> onEvents;
    };
    struct Timer {
        Watch watch;
        std::function<void()> then;
    };

    int timeUntilNextTimer() const;
    void fireTimers();

    int m_epoll;
    bool m_running = false;
    Watch m_last = 0;
    std::unordered_map<Watch, Entry> m_entries;
    std::multimap<Clock::time_point, Timer> m_timers;
};

} // namespace lodestar::simulator
