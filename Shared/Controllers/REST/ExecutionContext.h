// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/Queues/Task.h"

#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace lodestar
{

class ObjectContext;

/// A thread with its own loop that runs the blocks given to it.
class ThreadContext
{
public:
    ThreadContext() = default;
    ThreadContext(const ThreadContext&) = delete;
    ThreadContext& operator=(const ThreadContext&) = delete;
    virtual ~ThreadContext() = default;
    /// Runs the block on the thread, later and in the order of the calls, never inside this call. Any thread may call.
    virtual void dispatchBlock(Task block) = 0;
};

/// The place where a promise's handlers run. A small value; it keeps its queue or thread alive.
class ExecutionContext
{
public:
    static constexpr std::string_view defaultConcurrentQueueLabel = "RXPromise.default_concurrent_queue";
    /// The queue for handlers without a context of their own.
    static const DispatchQueue& defaultConcurrentQueue();

    static ExecutionContext defaultContext() { return ExecutionContext(Default{}); }
    static ExecutionContext mainThread() { return ExecutionContext(Main{}); }

    ExecutionContext(DispatchQueue queue) : m_target(std::move(queue)) {}
    ExecutionContext(OperationQueue queue) : m_target(std::move(queue)) {}
    /// The thread must not be null.
    template <typename Thread>
    requires std::is_convertible_v<std::shared_ptr<Thread>, std::shared_ptr<ThreadContext>>
    ExecutionContext(std::shared_ptr<Thread> thread) : m_target(std::shared_ptr<ThreadContext>(std::move(thread)))
    {
    }
    /// The thread of an object context: the main thread.
    ExecutionContext(const ObjectContext&) : m_target(Main{}) {}

    /// Runs the block in this context later, never inside this call.
    void dispatchBlock(Task block) const;

private:
    struct Default {
    };
    struct Main {
    };
    explicit ExecutionContext(Default target) : m_target(target) {}
    explicit ExecutionContext(Main target) : m_target(target) {}

    std::variant<Default, Main, DispatchQueue, OperationQueue, std::shared_ptr<ThreadContext>> m_target;
};

} // namespace lodestar
