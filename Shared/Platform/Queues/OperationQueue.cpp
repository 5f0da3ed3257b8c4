// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/OperationQueue.h"

#include "Platform/Queues/ThreadPool.h"

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <utility>

namespace lodestar
{

/// Operations keep the state alive, so none is lost when the last handle is destroyed.
struct OperationQueue::State final : ThreadPool::Owner, std::enable_shared_from_this<OperationQueue::State> {
    void add(Task operation)
    {
        {
            const std::lock_guard lock(mutex);
            ++unfinished;
        }
        ThreadPool::shared().submit(std::move(operation), shared_from_this());
    }

    void run(Task& operation) override
    {
        operation();
        operation.reset();
        const std::lock_guard lock(mutex);
        if (--unfinished == 0) {
            finished.notify_all();
        }
    }

    std::mutex mutex;
    std::condition_variable finished;
    std::size_t unfinished = 0;
};

OperationQueue::OperationQueue() : m_state(std::make_shared<State>()) {}

void OperationQueue::addOperation(Task operation) const
{
    m_state->add(std::move(operation));
}

void OperationQueue::waitUntilAllOperationsAreFinished() const
{
    std::unique_lock lock(m_state->mutex);
    m_state->finished.wait(lock, [&] { return m_state->unfinished == 0; });
}

} // namespace lodestar
