// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/OperationQueue.h"

#include <memory>
#include <mutex>
#include <vector>

namespace lodestar
{

/// Runs blocks on a concurrent queue one at a time and in order. Posted blocks run even when nobody holds the strand
/// any more. Thread-safe.
class Strand : public std::enable_shared_from_this<Strand>
{
public:
    explicit Strand(OperationQueue queue) : m_queue(std::move(queue)) {}

    void post(Task block)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_blocks.push_back(std::move(block));
            if (std::exchange(m_scheduled, true)) {
                return;
            }
        }
        m_queue.addOperation([self = shared_from_this()] { self->run(); });
    }

private:
    void run()
    {
        std::vector<Task> blocks;
        for (;;) {
            {
                const std::lock_guard lock(m_mutex);
                blocks.clear();
                blocks.swap(m_blocks);
                if (blocks.empty()) {
                    m_scheduled = false;
                    return;
                }
            }
            for (Task& block : blocks) {
                block();
                block.reset();
            }
        }
    }

    const OperationQueue m_queue;
    std::mutex m_mutex;
    std::vector<Task> m_blocks;
    bool m_scheduled = false;
};

} // namespace lodestar
