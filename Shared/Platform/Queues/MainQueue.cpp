// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/MainQueue.h"

#include "Platform/Queues/OwnThread.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace lodestar
{

namespace
{

using Clock = std::chrono::steady_clock;
using Wake = std::shared_ptr<const std::function<void()>>;

/// A limit on one wait: the host's own work may change the predicate's answer without queueing a block.
constexpr std::chrono::milliseconds pollInterval{2};

} // namespace

struct MainQueue::State {
    void push(Task block, std::unique_lock<std::mutex>& lock);
    void callWake(std::unique_lock<std::mutex>& lock);
    bool runBlocks(Clock::time_point deadline, std::unique_lock<std::mutex>& lock);
    void runTimers();

    std::mutex mutex;
    std::atomic<std::thread::id> mainThread{std::this_thread::get_id()};
    std::deque<Task> blocks;
    std::uint64_t pushed = 0;
    std::uint64_t popped = 0;
    bool woken = false; ///< the host was woken for the waiting blocks, or comes back for them by itself

    Wake wake;
    std::size_t wakesRunning = 0;
    std::condition_variable wakesEnded;
    std::size_t waiting = 0; ///< callers in `runUntil`
    std::condition_variable blockCame;

    std::multimap<Clock::time_point, Task> timers; ///< equal times stay in the order in which they were asked for
    bool timerThreadExists = false;
    std::condition_variable timersChanged;
};

/// Call with the lock held. The lock is released for a while when a wake function is called.
void MainQueue::State::push(Task block, std::unique_lock<std::mutex>& lock)
{
    blocks.push_back(std::move(block));
    ++pushed;
    if (waiting > 0) {
        blockCame.notify_all();
    }
    if (!woken) {
        callWake(lock);
    }
}

void MainQueue::State::callWake(std::unique_lock<std::mutex>& lock)
{
    if (wake == nullptr) {
        return;
    }
    woken = true;
    ++wakesRunning;
    Wake function = wake;
    lock.unlock();
    (*function)();
    function.reset();
    lock.lock();
    --wakesRunning;
    wakesEnded.notify_all();
}

void MainQueue::State::runTimers()
{
    const OwnThread thread("lodestar-timer");
    std::unique_lock lock(mutex);
    while (true) {
        if (timers.empty()) {
            timersChanged.wait(lock);
        } else if (const auto due = timers.begin()->first; Clock::now() < due) {
            timersChanged.wait_until(lock, due);
        } else {
            push(std::move(timers.extract(timers.begin()).mapped()), lock);
        }
    }
}

MainQueue::MainQueue() : m_state(new State) {}

MainQueue& MainQueue::shared()
{
    // Never destroyed: blocks may come from any thread until the very end of the process.
    static auto* const queue = new MainQueue;
    return *queue;
}

void MainQueue::async(Task block)
{
    std::unique_lock lock(m_state->mutex);
    m_state->push(std::move(block), lock);
}

void MainQueue::asyncAfter(std::chrono::milliseconds delay, Task block)
{
    const std::lock_guard lock(m_state->mutex);
    m_state->timers.emplace(Clock::now() + delay, std::move(block));
    if (m_state->timerThreadExists) {
        m_state->timersChanged.notify_one();
    } else {
        m_state->timerThreadExists = true;
        std::thread([state = m_state] { state->runTimers(); }).detach();
    }
}

void MainQueue::run(Task block)
{
    if (isCurrent()) {
        block();
    } else {
        async(std::move(block));
    }
}

bool MainQueue::isCurrent() const
{
    return m_state->mainThread.load(std::memory_order_relaxed) == std::this_thread::get_id();
}

void MainQueue::adoptCurrentThread()
{
    m_state->mainThread.store(std::this_thread::get_id(), std::memory_order_relaxed);
}

void MainQueue::setWake(std::function<void()> wake)
{
    std::unique_lock lock(m_state->mutex);
    m_state->wake = wake ? std::make_shared<const std::function<void()>>(std::move(wake)) : nullptr;
    // After this call no thread is inside the old wake function, so the caller may destroy what it refers to.
    m_state->wakesEnded.wait(lock, [&] { return m_state->wakesRunning == 0; });
    m_state->woken = false;
    if (!m_state->blocks.empty()) {
        m_state->callWake(lock);
    }
}

/// Call with the lock held. Runs the blocks that wait now. Takes them one at a time and counts them, so that a block
/// that drains the queue itself (a modal loop) runs the blocks behind it in order. Returns whether any block ran.
bool MainQueue::State::runBlocks(Clock::time_point deadline, std::unique_lock<std::mutex>& lock)
{
    const std::uint64_t end = pushed;
    bool ran = false;
    while (popped < end && (!ran || Clock::now() < deadline)) {
        Task block = std::move(blocks.front());
        blocks.pop_front();
        ++popped;
        lock.unlock();
        block();
        block.reset();
        ran = true;
        lock.lock();
    }
    return ran;
}

bool MainQueue::drain()
{
    std::unique_lock lock(m_state->mutex);
    m_state->woken = false;
    return m_state->runBlocks(Clock::time_point::max(), lock);
}

bool MainQueue::drainFor(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_state->mutex);
    // A block that comes meanwhile wakes nobody: a loop that handles wakes until none is left would never get on.
    m_state->woken = true;
    m_state->runBlocks(Clock::now() + limit, lock);
    m_state->woken = !m_state->blocks.empty();
    return m_state->woken;
}

bool MainQueue::runUntil(const std::function<bool()>& predicate, std::chrono::milliseconds limit)
{
    const auto deadline = Clock::now() + limit;
    while (true) {
        drain();
        if (predicate()) {
            return true;
        }
        const auto now = Clock::now();
        if (now >= deadline) {
            return false;
        }
        std::unique_lock lock(m_state->mutex);
        ++m_state->waiting;
        m_state->blockCame.wait_until(lock, std::min(deadline, now + pollInterval),
                                      [&] { return !m_state->blocks.empty(); });
        --m_state->waiting;
    }
}

} // namespace lodestar
