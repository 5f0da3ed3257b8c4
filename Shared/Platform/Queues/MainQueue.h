// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/Task.h"

#include <chrono>
#include <functional>

namespace lodestar
{

/// The main thread's queue of blocks. The host's event loop drains it: the application posts an event to its loop from
/// `setWake`'s function and calls `drain` when the event arrives; a test calls `runUntil`.
class MainQueue
{
public:
    static MainQueue& shared();

    /// Runs the block on the main thread, later, in order. Thread-safe.
    void async(Task block);
    /// Like `async`, but runs the block no sooner than after the delay (monotonic clock). Thread-safe.
    void asyncAfter(std::chrono::milliseconds delay, Task block);
    /// Runs the block at once when called on the main thread; otherwise like `async`. Thread-safe.
    void run(Task block);
    /// True on the main thread. The main thread is the one that last called `adoptCurrentThread`; at first, the one
    /// that created the queue.
    bool isCurrent() const;
    void adoptCurrentThread();

    /// Sets the function that wakes the host. It is called when a drained queue gets a block, from any thread and
    /// without a lock held. It must only wake the main loop. Null removes it.
    void setWake(std::function<void()> wake);
    /// Main thread. Runs the blocks that were queued before the call. Blocks queued during the call wait for the next
    /// wake, so that a loop stays responsive. Returns whether any block ran.
    bool drain();
    /// Like `drain`, but begins no block once the time is over. Returns whether blocks are left: the host then calls
    /// again after a pass of its loop, and is not woken for them.
    bool drainFor(std::chrono::milliseconds limit);
    /// Main thread, for hosts without an event loop. Drains and waits until the predicate holds or the time is over;
    /// returns the predicate's last answer.
    bool runUntil(const std::function<bool()>& predicate, std::chrono::milliseconds limit);

private:
    MainQueue();
    struct State;
    State* m_state;
};

} // namespace lodestar
