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
/// Up to `threads` jobs run at once. When jobs wait and the running ones do not move on (they block), each tick makes a
/// few more threads, up to `maximumThreads`. A thread that finds nothing to do for `idleLimit` ends, as long as more
/// than `threads` are left. A job that throws ends the process.
class ThreadPool
{
public:
    struct Limits {
        std::size_t threads;
        std::size_t maximumThreads;
        std::chrono::milliseconds tick;
        std::chrono::milliseconds idleLimit;
    };

    /// The queue that a block belongs to. The queue runs the block, then updates its own state.
    class Owner
    {
    public:
        Owner() = default;
        Owner(const Owner&) = delete;
        Owner& operator=(const Owner&) = delete;
        virtual ~Owner() = default;
        virtual void run(Task& block) = 0;
    };

    /// While a scope lives on a thread, jobs that the thread submits are urgent. Jobs that an urgent job submits are
    /// always urgent: work that a person waits for stays ahead through all its steps. A scope made with false changes
    /// nothing.
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

    /// The process's pool. When the process exits, the pool starts no more jobs and waits a moment for the running
    /// ones; waiting jobs never run.
    static ThreadPool& shared();

    explicit ThreadPool(Limits limits);
    /// Starts no more jobs and waits for the running ones. Never destroy a pool from one of its own jobs.
    ~ThreadPool();
    ThreadPool(const ThreadPool&) = delete;
    ThreadPool& operator=(const ThreadPool&) = delete;

    /// Runs the block on one of the pool's threads. With an owner, the pool calls `owner->run(block)` and keeps the
    /// owner alive until that returns.
    void submit(Task block, std::shared_ptr<Owner> owner = nullptr);
    /// Starts no more jobs. Returns when all running jobs except the calling one have ended, or when the time is over.
    void stop(std::chrono::milliseconds limit);
    /// The number of threads at this moment, idle ones included.
    std::size_t threadCount() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lodestar
