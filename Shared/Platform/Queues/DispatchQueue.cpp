// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/DispatchQueue.h"

#include "Platform/Queues/ThreadPool.h"

#include <cassert>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace lodestar
{

namespace
{

/// One entry for each queue whose block the thread is running, innermost first.
struct Frame {
    const void* queue;
    const Frame* outer;
};
thread_local const Frame* t_frame = nullptr;

/// A thread that waits in `sync` for its turn.
struct Turn {
    std::condition_variable condition;
    bool granted = false;
};

/// What waits in a serial queue: a block for the pool, or a thread that runs its own.
struct Item {
    Task block;
    Turn* turn = nullptr; ///< set: the thread that waits there runs the block, not the pool
};

} // namespace

/// Blocks that run on the pool keep the state alive, so a queue lives until its last block has run. A concurrent queue
/// leaves everything to the pool.
struct DispatchQueue::State final : ThreadPool::Owner, std::enable_shared_from_this<DispatchQueue::State> {
    State(std::string queueLabel, Kind queueKind) : label(std::move(queueLabel)), kind(queueKind) {}

    void async(Task block);
    void sync(Task block);
    void run(Task& block) override;
    void execute(Task& block) const;
    bool takeNext(Task& block);

    const std::string label;
    const Kind kind;
    // A serial queue's.
    std::mutex mutex;
    std::deque<Item> pending;
    bool isBusy = false;
};

void DispatchQueue::State::async(Task block)
{
    if (kind == Kind::Serial) {
        const std::lock_guard lock(mutex);
        if (std::exchange(isBusy, true)) {
            pending.push_back({std::move(block)});
            return;
        }
    }
    ThreadPool::shared().submit(std::move(block), shared_from_this());
}

void DispatchQueue::State::sync(Task block)
{
    if (kind == Kind::Concurrent) {
        execute(block);
        return;
    }
    {
        std::unique_lock lock(mutex);
        if (std::exchange(isBusy, true)) {
            Turn turn;
            pending.push_back({Task(), &turn});
            turn.condition.wait(lock, [&] { return turn.granted; });
        }
    }
    execute(block);
    const std::lock_guard lock(mutex);
    if (Task next; takeNext(next)) {
        ThreadPool::shared().submit(std::move(next), shared_from_this());
    }
}

void DispatchQueue::State::execute(Task& block) const
{
    const Frame frame{this, t_frame};
    t_frame = &frame;
    block();
    block.reset();
    t_frame = frame.outer;
}

/// Runs on a thread of the pool. Runs up to 64 of a serial queue's blocks in a row: a long queue then needs no trip
/// through the pool for each block, and other queues still get the thread.
void DispatchQueue::State::run(Task& block)
{
    for (int i = 0; i < 64; ++i) {
        execute(block);
        if (kind == Kind::Concurrent) {
            return;
        }
        const std::lock_guard lock(mutex);
        if (!takeNext(block)) {
            return;
        }
    }
    ThreadPool::shared().submit(std::move(block), shared_from_this());
}

/// Call with the lock held, after a serial queue's block. Takes the next block, if that block belongs on the pool. A
/// thread that waits for its turn gets the turn instead.
bool DispatchQueue::State::takeNext(Task& block)
{
    isBusy = !pending.empty();
    if (!isBusy) {
        return false;
    }
    Item item = std::move(pending.front());
    pending.pop_front();
    if (item.turn != nullptr) {
        item.turn->granted = true;
        item.turn->condition.notify_one();
        return false;
    }
    block = std::move(item.block);
    return true;
}

DispatchQueue::DispatchQueue(std::string label, Kind kind) : m_state(std::make_shared<State>(std::move(label), kind)) {}

const std::string& DispatchQueue::label() const
{
    return m_state->label;
}

void DispatchQueue::async(Task block) const
{
    m_state->async(std::move(block));
}

void DispatchQueue::sync(Task block) const
{
    assert(m_state->kind == Kind::Concurrent || !isCurrent());
    const auto state = m_state; // the block may drop the last handle
    state->sync(std::move(block));
}

bool DispatchQueue::isCurrent() const
{
    for (const Frame* frame = t_frame; frame != nullptr; frame = frame->outer) {
        if (frame->queue == m_state.get()) {
            return true;
        }
    }
    return false;
}

const DispatchQueue& DispatchQueue::globalBackground()
{
    // Never destroyed: it may be used until the very end of the process.
    static const auto* const queue = new DispatchQueue("lodestar.background", Kind::Concurrent);
    return *queue;
}

} // namespace lodestar
