// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/Task.h"

#include <cstddef>
#include <memory>
#include <string>

namespace lodestar
{

/// A concurrent background queue of operations on the process's thread pool, as network completions want it.
/// Thread-safe; copies are the same queue. Operations that are waiting when the last copy goes are still run.
class OperationQueue
{
public:
    explicit OperationQueue(std::string name = {});

    const std::string& name() const;
    void addOperation(Task operation) const;
    /// Blocks until the queue has nothing waiting and nothing running.
    void waitUntilAllOperationsAreFinished() const;
    /// At most so many operations at once; 0 (as made) is the pool's own limit. One makes the queue serial.
    void setMaxConcurrentOperationCount(std::size_t count) const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lodestar
