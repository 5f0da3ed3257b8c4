// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/OperationQueue.h"

#include "Platform/Queues/Ring.h"
#include "Platform/Queues/ThreadPool.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace lodestar
{

/// Running operations keep the state alive, and operations wait only behind running ones; so none is lost when the last
/// handle is destroyed.
struct OperationQueue::State final : ThreadPool::Owner, std::enable_shared_from_this<OperationQueue::State> {
    explicit State(std::string queueName) : name(std::move(queueName)) {}

    bool mayStart() const { return maximum == 0 || running < maximum; }

    void add(Task operation)
    {
        const std::lock_guard lock(mutex);
        if (mayStart() && pending.empty()) {
            start(std::move(operation));
        } else {
            pending.push(std::move(operation));
        }
    }

    /// Call with the lock held.
    void start(Task operation)
    {
        ++running;
        ThreadPool::shared().submit(std::move(operation), shared_from_this());
    }
    void startAll()
    {
        while (!pending.empty() && mayStart()) {
            start(pending.pop());
        }
    }

    void run(Task& operation) override
    {
        operation();
        operation.reset();
        const std::lock_guard lock(mutex);
        --running;
        startAll();
        if (running == 0) {
            finished.notify_all();
        }
    }

    const std::string name;
    std::mutex mutex;
    std::condition_variable finished;
    Ring<Task> pending;
    std::size_t running = 0;
    std::size_t maximum = 0;
};

OperationQueue::OperationQueue(std::string name) : m_state(std::make_shared<State>(std::move(name))) {}

const std::string& OperationQueue::name() const
{
    return m_state->name;
}

void OperationQueue::addOperation(Task operation) const
{
    m_state->add(std::move(operation));
}

void OperationQueue::waitUntilAllOperationsAreFinished() const
{
    std::unique_lock lock(m_state->mutex);
    m_state->finished.wait(lock, [&] { return m_state->running == 0; });
}

void OperationQueue::setMaxConcurrentOperationCount(std::size_t count) const
{
    const std::lock_guard lock(m_state->mutex);
    m_state->maximum = count;
    m_state->startAll();
}

} // namespace lodestar
