// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/Task.h"

#include <memory>
#include <string>

namespace lodestar
{

/// A labelled queue of blocks over the process's one thread pool. Thread-safe. Cheap to copy: copies are the same
/// queue. When the last copy is destroyed, waiting blocks still run.
///
/// The pool grows when blocks wait and every thread is blocked, up to a generous maximum; a block may therefore block.
class DispatchQueue
{
public:
    enum class Kind {
        Serial,    ///< one block at a time, in the order of `async`
        Concurrent ///< blocks start in the order of `async` and may overlap
    };

    DispatchQueue(std::string label, Kind kind);

    const std::string& label() const;

    /// Runs the block later, never inside this call.
    void async(Task block) const;
    /// Runs the block on the calling thread when the queue's turn comes; returns when the block has run. On a serial
    /// queue this works like a lock. Calling it from a block of the same serial queue is a programming error.
    void sync(Task block) const;

    /// True on a thread that is running a block of this queue.
    bool isCurrent() const;

    /// The process-wide concurrent queue for work that nobody waits for.
    static const DispatchQueue& globalBackground();

    friend bool operator==(const DispatchQueue& a, const DispatchQueue& b) { return a.m_state == b.m_state; }

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lodestar
