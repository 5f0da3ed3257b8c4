// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/ConcurrentPerform.h"

#include "Platform/Queues/DispatchQueue.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace lodestar
{
namespace
{

/// A helper may begin when the caller has returned long ago; then no number is left, and it does not touch the block.
class Work
{
public:
    Work(std::size_t count, const std::function<void(std::size_t)>& block) : m_count(count), m_block(block) {}

    void run()
    {
        std::size_t performed = 0;
        for (std::size_t i = m_next++; i < m_count; i = m_next++) {
            m_block(i);
            ++performed;
        }
        const std::lock_guard lock(m_mutex);
        m_done += performed;
        if (m_done == m_count) {
            m_allDone.notify_all();
        }
    }

    void wait()
    {
        std::unique_lock lock(m_mutex);
        m_allDone.wait(lock, [this] { return m_done == m_count; });
    }

private:
    const std::size_t m_count;
    const std::function<void(std::size_t)>& m_block;
    std::atomic<std::size_t> m_next = 0;
    std::mutex m_mutex;
    std::condition_variable m_allDone;
    std::size_t m_done = 0;
};

std::size_t threads()
{
    const std::size_t processors = std::thread::hardware_concurrency();
    return processors > 2 ? processors - 1 : processors;
}

} // namespace

void concurrentPerform(std::size_t count, const std::function<void(std::size_t)>& block)
{
    const auto work = std::make_shared<Work>(count, block);
    for (std::size_t i = 1; i < std::min(threads(), count); ++i) {
        DispatchQueue::globalBackground().async([work] { work->run(); });
    }
    work->run();
    work->wait();
}

} // namespace lodestar
