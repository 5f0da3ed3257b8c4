// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/DispatchQueue.h"

#include "Platform/Queues/Ring.h"
#include "Platform/Queues/ThreadPool.h"

#include <cassert>
#include <condition_variable>
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

struct Item {
    Task block;
    Turn* turn = nullptr; ///< set: the thread that waits there runs the block, not the pool
    bool alone = false;
};

} // namespace

/// Blocks that run on the pool keep the state alive, so a queue lives until its last running block has looked for the
/// next one. Only a suspended queue can be destroyed with blocks in it.
struct DispatchQueue::State final : ThreadPool::Owner, std::enable_shared_from_this<DispatchQueue::State> {
    State(std::string queueLabel, Kind queueKind) : label(std::move(queueLabel)), kind(queueKind) {}

    void async(Task block, bool alone);
    void sync(Task block);
    void resume();
    void run(Task& block) override;
    void execute(Task& block) const;

    bool mayStart(bool alone) const { return suspended == 0 && !aloneRuns && !(alone && running > 0); }
    bool pendingMayStart() const { return !pending.empty() && mayStart(pending.front().alone); }
    void begin(bool alone);
    void end();
    bool takeNext(Task& block);
    void startAll();

    const std::string label;
    const Kind kind;
    std::mutex mutex;
    Ring<Item> pending;
    std::size_t running = 0;
    std::size_t suspended = 0;
    bool aloneRuns = false;
};

void DispatchQueue::State::begin(bool alone)
{
    ++running;
    aloneRuns = alone;
}

void DispatchQueue::State::end()
{
    --running;
    aloneRuns = false;
}

void DispatchQueue::State::async(Task block, bool alone)
{
    {
        const std::lock_guard lock(mutex);
        if (!pending.empty() || !mayStart(alone)) {
            pending.push({std::move(block), nullptr, alone});
            return;
        }
        begin(alone);
    }
    ThreadPool::shared().submit(std::move(block), shared_from_this());
}

void DispatchQueue::State::sync(Task block)
{
    const bool alone = kind == Kind::Serial;
    {
        std::unique_lock lock(mutex);
        if (pending.empty() && mayStart(alone)) {
            begin(alone);
        } else {
            Turn turn;
            pending.push({Task(), &turn, alone});
            turn.condition.wait(lock, [&] { return turn.granted; });
        }
    }
    execute(block);
    const std::lock_guard lock(mutex);
    end();
    startAll();
}

void DispatchQueue::State::resume()
{
    const std::lock_guard lock(mutex);
    assert(suspended > 0);
    if (--suspended == 0) {
        startAll();
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

/// Runs on a thread of the pool. Runs up to 64 of the queue's blocks in a row: a long queue then needs no trip through
/// the pool for each block, and other queues still get the thread.
void DispatchQueue::State::run(Task& block)
{
    for (int i = 0; i < 64; ++i) {
        execute(block);
        const std::lock_guard lock(mutex);
        end();
        if (!takeNext(block)) {
            return;
        }
    }
    ThreadPool::shared().submit(std::move(block), shared_from_this());
}

/// Call with the lock held. Takes the next block for this thread, if that block may start and belongs on the pool.
/// Starts every other block that may start as well.
bool DispatchQueue::State::takeNext(Task& block)
{
    if (!pendingMayStart() || pending.front().turn != nullptr) {
        startAll();
        return false;
    }
    Item item = pending.pop();
    begin(item.alone);
    block = std::move(item.block);
    startAll();
    return true;
}

/// Call with the lock held. Hands out every block that may start now, in order.
void DispatchQueue::State::startAll()
{
    while (pendingMayStart()) {
        Item item = pending.pop();
        begin(item.alone);
        if (item.turn != nullptr) {
            item.turn->granted = true;
            item.turn->condition.notify_one();
        } else {
            ThreadPool::shared().submit(std::move(item.block), shared_from_this());
        }
    }
}

DispatchQueue::DispatchQueue(std::string label, Kind kind) : m_state(std::make_shared<State>(std::move(label), kind)) {}

const std::string& DispatchQueue::label() const
{
    return m_state->label;
}

DispatchQueue::Kind DispatchQueue::kind() const
{
    return m_state->kind;
}

void DispatchQueue::async(Task block) const
{
    m_state->async(std::move(block), m_state->kind == Kind::Serial);
}

void DispatchQueue::sync(Task block) const
{
    assert(m_state->kind == Kind::Concurrent || !isCurrent());
    const auto state = m_state; // the block may drop the last handle
    state->sync(std::move(block));
}

void DispatchQueue::barrierAsync(Task block) const
{
    m_state->async(std::move(block), true);
}

void DispatchQueue::suspend() const
{
    const std::lock_guard lock(m_state->mutex);
    ++m_state->suspended;
}

void DispatchQueue::resume() const
{
    m_state->resume();
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
