// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/Task.h"

#include <chrono>
#include <cstddef>
#include <memory>

namespace lodestar
{

/// The threads behind every queue. Jobs start in the order of `submit`, urgent ones before all others. Thread-safe.
///
/// Up to `threads` jobs run at once as a matter of course. When jobs wait and the running ones do not move on (they
/// block), more threads are made, a few each tick, up to `maximumThreads`; a thread that finds nothing to do for
/// `idleLimit` ends, as long as more than `threads` are left. A job that throws ends the process.
class ThreadPool
{
public:
    struct Limits {
        std::size_t threads;
        std::size_t maximumThreads;
        std::chrono::milliseconds tick;
        std::chrono::milliseconds idleLimit;
    };

    /// The queue that a block belongs to: it runs the block and then does its own book-keeping.
    class Owner
    {
    public:
        Owner() = default;
        Owner(const Owner&) = delete;
        Owner& operator=(const Owner&) = delete;
        virtual ~Owner() = default;
        virtual void run(Task& block) = 0;
    };

    /// While one lives on a thread, the jobs that the thread submits are urgent. Jobs of an urgent job are so in any
    /// case: what a person waits for stays ahead through all its steps. Made with false it changes nothing.
    class UrgentScope
    {
    public:
        explicit UrgentScope(bool isUrgent);
        ~UrgentScope();
        UrgentScope(const UrgentScope&) = delete;
        UrgentScope& operator=(const UrgentScope&) = delete;

    private:
        const bool m_before;
    };

    /// The process's pool. At the process's exit it starts no more jobs and waits a moment for the running ones; what
    /// still waits is never run.
    static ThreadPool& shared();

    explicit ThreadPool(Limits limits);
    /// Runs what waits, then ends the threads. Not from one of its own jobs.
    ~ThreadPool();
    ThreadPool(const ThreadPool&) = delete;
    ThreadPool& operator=(const ThreadPool&) = delete;

    /// Runs the block on one of the pool's threads. With an owner, `owner->run(block)` is called, and the owner is kept
    /// alive until that returns.
    void submit(Task block, std::shared_ptr<Owner> owner = nullptr);
    /// Starts no more jobs; returns once those that run (but the calling one) have ended or the time is over.
    void stop(std::chrono::milliseconds limit);
    /// The threads that there are at this moment, idle ones included.
    std::size_t threadCount() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lodestar
