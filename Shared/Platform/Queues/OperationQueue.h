// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/Task.h"

#include <memory>

namespace lodestar
{

/// A concurrent background queue of operations on the process's thread pool, for network completions. Thread-safe;
/// copies are the same queue. Operations that wait when the last copy is destroyed still run.
class OperationQueue
{
public:
    OperationQueue();
    void addOperation(Task operation) const;
    /// Blocks until no operation waits or runs.
    void waitUntilAllOperationsAreFinished() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lodestar
