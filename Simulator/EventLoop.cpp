// SPDX-License-Identifier: Apache-2.0
#include "Simulator/EventLoop.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/epoll.h>
#include <system_error>
#include <unistd.h>

namespace lodestar::simulator
{

EventLoop::EventLoop() : m_epoll(epoll_create1(EPOLL_CLOEXEC))
{
    if (m_epoll < 0) {
        throw std::system_error(errno, std::generic_category(), "epoll_create1");
    }
}

EventLoop::~EventLoop()
{
    ::close(m_epoll);
}

EventLoop::Watch EventLoop::watch(int descriptor, std::uint32_t events, std::function<void(std::uint32_t)> onEvents)
{
    const Watch watch = ++m_last;
    epoll_event event{};
    event.events = events;
    event.data.u64 = watch;
    if (epoll_ctl(m_epoll, EPOLL_CTL_ADD, descriptor, &event) != 0) {
        throw std::system_error(errno, std::generic_category(), "epoll_ctl");
    }
    m_entries.emplace(watch, Entry{descriptor, events, std::move(onEvents)});
    return watch;
}

void EventLoop::change(Watch watch, std::uint32_t events)
{
    const auto entry = m_entries.find(watch);
    if (entry == m_entries.end() || entry->second.events == events) {
        return;
    }
    epoll_event event{};
    event.events = events;
    event.data.u64 = watch;
    epoll_ctl(m_epoll, EPOLL_CTL_MOD, entry->second.descriptor, &event);
    entry->second.events = events;
}

void EventLoop::forget(Watch watch)
{
    if (const auto entry = m_entries.find(watch); entry != m_entries.end()) {
        epoll_ctl(m_epoll, EPOLL_CTL_DEL, entry->second.descriptor, nullptr);
        m_entries.erase(entry);
    }
}

void EventLoop::after(std::chrono::milliseconds delay, Watch watch, std::function<void()> then)
{
    m_timers.emplace(Clock::now() + delay, Timer{watch, std::move(then)});
}

int EventLoop::timeUntilNextTimer() const
{
    if (m_timers.empty()) {
        return -1;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_timers.begin()->first - Clock::now()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, 60000));
}

void EventLoop::fireTimers()
{
    const auto now = Clock::now();
    while (m_running && !m_timers.empty() && m_timers.begin()->first <= now) {
        const auto timer = m_timers.extract(m_timers.begin());
        if (m_entries.contains(timer.mapped().watch)) {
            timer.mapped().then();
        }
    }
}

void EventLoop::run()
{
    m_running = true;
    std::array<epoll_event, 256> events{};
    while (m_running) {
        const int count = epoll_wait(m_epoll, events.data(), static_cast<int>(events.size()), timeUntilNextTimer());
        for (int i = 0; i < count && m_running; ++i) {
            const epoll_event& event = events.at(static_cast<std::size_t>(i));
            const auto entry = m_entries.find(event.data.u64);
            if (entry != m_entries.end()) {
                // Call a copy, since the callback may forget its own watch.
                const auto onEvents = entry->second.onEvents;
                onEvents(event.events);
            }
        }
        fireTimers();
    }
}

} // namespace lodestar::simulator
