// SPDX-License-Identifier: Apache-2.0
#include "XML/KeptRoom.h"

#include "Platform/Queues/ThreadPool.h"
#include "XML/KeptBytes.h"

#include <algorithm>
#include <atomic>
#include <deque>
#include <mutex>
#include <utility>

namespace lodestar
{

namespace
{

struct Waiting {
    std::size_t bytes;
    KeptRoom::Start start;
};

struct State {
    std::mutex mutex;
    std::deque<Waiting> waiting;
    std::size_t promised = 0;
    std::size_t shares = 0;
    std::atomic<bool> someWait{false};
    std::atomic<bool> isScheduled{false};

    /// Call with the lock held.
    bool hasRoom(std::size_t bytes) const
    {
        return shares == 0 || KeptBytes::total() + promised + bytes <= KeptBytes::limit();
    }
};

void moreIsFree();

State& state()
{
    // Never destroyed: feeds may come in until the very end of the process.
    static State* const shared = [] {
        KeptBytes::setGivenBack(&moreIsFree);
        return new State;
    }();
    return *shared;
}

void startThoseThatFit()
{
    State& all = state();
    for (;;) {
        std::unique_lock lock(all.mutex);
        if (all.waiting.empty() || !all.hasRoom(all.waiting.front().bytes)) {
            all.someWait = !all.waiting.empty();
            return;
        }
        const Waiting next = std::move(all.waiting.front());
        all.waiting.pop_front();
        all.promised += next.bytes;
        ++all.shares;
        lock.unlock();
        next.start(std::make_shared<KeptRoom::Share>(next.bytes));
    }
}

/// Kept bytes, or promised ones, have gone.
void moreIsFree()
{
    if (state().someWait && !state().isScheduled.exchange(true)) {
        ThreadPool::shared().submit([] {
            state().isScheduled = false;
            startThoseThatFit();
        });
    }
}

} // namespace

void KeptRoom::whenThereIs(std::size_t bytes, Urgency urgency, Start start)
{
    {
        const std::lock_guard lock(state().mutex);
        std::deque<Waiting>& waiting = state().waiting;
        waiting.insert(urgency == Urgency::Person ? waiting.begin() : waiting.end(), {bytes, std::move(start)});
        state().someWait = true;
    }
    startThoseThatFit();
}

KeptRoom::Share::~Share()
{
    {
        const std::lock_guard lock(state().mutex);
        state().promised -= m_bytes;
        --state().shares;
    }
    moreIsFree();
}

void KeptRoom::Share::didKeep(std::size_t bytes)
{
    const std::lock_guard lock(state().mutex);
    const std::size_t kept = std::min(bytes, m_bytes);
    m_bytes -= kept;
    state().promised -= kept;
}

} // namespace lodestar
