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

/// A thread with a loop of its own that blocks can be given to.
class ThreadContext
{
public:
    ThreadContext() = default;
    ThreadContext(const ThreadContext&) = delete;
    ThreadContext& operator=(const ThreadContext&) = delete;
    virtual ~ThreadContext() = default;
    /// Runs the block on the thread, later and in the order of the calls, never within this call. From any thread.
    virtual void dispatchBlock(Task block) = 0;
};

/// Where a promise's handlers run. A small value; it keeps the queue or thread that it names.
class ExecutionContext
{
public:
    static constexpr std::string_view defaultConcurrentQueueLabel = "RXPromise.default_concurrent_queue";
    /// The queue that handlers run on when nothing else is said.
    static const DispatchQueue& defaultConcurrentQueue();

    static ExecutionContext defaultContext() { return ExecutionContext(Default{}); }
    static ExecutionContext mainThread() { return ExecutionContext(Main{}); }

    ExecutionContext(DispatchQueue queue) : m_target(std::move(queue)) {}
    ExecutionContext(OperationQueue queue) : m_target(std::move(queue)) {}
    /// The thread may not be null.
    template <typename Thread>
    requires std::is_convertible_v<std::shared_ptr<Thread>, std::shared_ptr<ThreadContext>>
    ExecutionContext(std::shared_ptr<Thread> thread) : m_target(std::shared_ptr<ThreadContext>(std::move(thread)))
    {
    }
    /// The thread on which an object context is used, which is the main thread.
    ExecutionContext(const ObjectContext&) : m_target(Main{}) {}

    /// Has the block run there later, never within this call.
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
