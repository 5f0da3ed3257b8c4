// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/ExecutionContext.h"
#include "Platform/Error.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

/// The untyped half of `RXPromise`: state, handler queue, life. Nothing here is for users of promises.
namespace lodestar::promise
{

enum class State : std::uint8_t { Pending, Fulfilled, Rejected, Cancelled };

/// The error that promises make themselves.
Error errorWithReason(std::string_view reason);

/// The one serial queue behind which the state of every promise lives: a lock in queue form, which runs its blocks one
/// at a time on their callers. Its blocks are a few loads and stores, and the move of a value into its place; whatever
/// is destroyed, copied or dispatched is so outside.
class SharedSyncQueue
{
public:
    static constexpr std::string_view label = "RXPromise.shared_sync_queue";
    /// The queue is recognised by the value of this key, which is not null exactly within its blocks.
    static constexpr std::string_view queueIdKey = "RXPromise.queue_id";

    static const void* getSpecific(std::string_view key)
    {
        return key == queueIdKey && t_inside ? static_cast<const void*>(&s_mutex) : nullptr;
    }

    /// Within one of its blocks (a value's move may ask a promise something) a further block runs at once.
    template <typename Block>
    static auto sync(Block&& block)
    {
        const Turn turn;
        return block();
    }

private:
    class Turn
    {
    public:
        Turn() : m_outermost(!t_inside)
        {
            if (m_outermost) {
                s_mutex.lock();
                t_inside = true;
            }
        }
        ~Turn()
        {
            if (m_outermost) {
                t_inside = false;
                s_mutex.unlock();
            }
        }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        const bool m_outermost;
    };

    static inline constinit std::mutex s_mutex;
    static inline constinit thread_local bool t_inside = false;
};

/// A reference to something that counts its own references.
template <typename Counted>
class Ref
{
public:
    Ref() = default;
    /// Takes over one reference.
    static Ref adopt(Counted* counted)
    {
        Ref ref;
        ref.m_counted = counted;
        return ref;
    }
    /// Adds one reference.
    explicit Ref(Counted& counted) : m_counted(&counted) { counted.retain(); }
    Ref(const Ref& other) : m_counted(other.m_counted)
    {
        if (m_counted != nullptr) {
            m_counted->retain();
        }
    }
    Ref(Ref&& other) noexcept : m_counted(std::exchange(other.m_counted, nullptr)) {}
    Ref& operator=(Ref other) noexcept
    {
        std::swap(m_counted, other.m_counted);
        return *this;
    }
    ~Ref()
    {
        if (m_counted != nullptr) {
            m_counted->release();
        }
    }

    Counted& operator*() const { return *m_counted; }
    Counted* operator->() const { return m_counted; }
    Counted* get() const { return m_counted; }
    /// Gives up its reference without releasing it.
    Counted* detach() { return std::exchange(m_counted, nullptr); }

private:
    Counted* m_counted = nullptr;
};

class Core;

/// What waits in a promise's handler queue. The queue holds one reference to whatever the node belongs to; it passes
/// with either call, and each node gets exactly one of the two.
class Node
{
public:
    Node() = default;
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    virtual ~Node() = default;

    /// Whether it holds handlers, which run one after another; the others need not wait for any.
    virtual bool takesTurn() const { return false; }
    /// On the thread that settles (or registers on a settled promise), outside the sync queue. Not for those that take
    /// a turn.
    virtual void parentSettled(Core& parent) = 0;
    /// The promise is gone without having been settled.
    virtual void parentGone() = 0;

private:
    friend class Core;
    Node* m_next = nullptr;
};

/// One promise. A derived promise is itself the node that waits in its parent's handler queue, so that a promise and
/// its handlers are one allocation.
class Core : public Node
{
public:
    explicit Core(ExecutionContext context) : m_context(std::move(context)) {}

    void retain() { m_references.fetch_add(1, std::memory_order_relaxed); }
    void release()
    {
        if (m_references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            dispose(*this);
        }
    }

    State state() const
    {
        return SharedSyncQueue::sync([this] { return m_state; });
    }
    /// Without the sync queue: only for those who know that it has settled.
    State settledState() const { return m_state; }
    /// Only when rejected or cancelled.
    const std::shared_ptr<const Error>& error() const { return m_error; }

    /// Rejects or cancels; nothing when settled.
    void settleWithError(State state, std::shared_ptr<const Error> error);
    void settleWithError(State state, Error error);
    /// Empty until something was registered.
    std::string handlerQueueLabel() const;
    bool isDerivedFrom(const Core& parent) const;

    /// Puts the derived promise, whose handlers are not run yet, into the handler queue.
    void registerDerived(Ref<Core> derived);
    /// Settles as the other does, when it does.
    void bind(Core& other);
    /// Puts a node into the handler queue, or runs it when settled. One reference of the node's passes.
    void addNode(Node& node) { addNode(node, nullptr); }

protected:
    /// Settles with what `store` puts in place, within the sync queue. False, and `store` not called, when settled.
    template <typename Store>
    bool settle(State state, Store&& store)
    {
        Node* registered = nullptr;
        const bool settled = SharedSyncQueue::sync([&] {
            if (m_state != State::Pending) {
                return false;
            }
            store();
            m_state = state;
            registered = takeNodes();
            return true;
        });
        if (registered != nullptr) {
            resumeHandlerQueue(*registered);
        }
        return settled;
    }

    /// Calls the handler that the settled parent asks for, drops both, and settles with the outcome.
    virtual void runHandler(Core& parent);
    /// Drops the handlers' captures.
    virtual void dropHandlers() noexcept {}
    /// Copies the other's value; called when the other is fulfilled. Both hold the same type.
    virtual void adoptValue(const Core& other) = 0;

private:
    class Turn;

    static void dispose(Core& core);
    bool takesTurn() const final { return !m_bound; }
    void parentSettled(Core& parent) final;
    void parentGone() final;
    void addNode(Node& node, Core* derived);
    /// Within the sync queue. While nodes that were taken are not handed out yet, the queue counts as resuming.
    Node* takeNodes()
    {
        m_last = nullptr;
        m_resuming = m_first != nullptr;
        m_known = m_references.load(std::memory_order_acquire) > 1;
        return std::exchange(m_first, nullptr);
    }
    void resumeHandlerQueue(Node& registered);
    void handOut(Node* node);
    Core* takeNext();
    void passTurn();
    void abandonNodes();
    void adopt(const Core& other);

    std::atomic<std::uint32_t> m_references{1};
    // Behind the sync queue:
    State m_state = State::Pending;
    bool m_resuming = false; ///< settled, and somebody has the turn
    // Of whoever has the turn, that is hands out nodes or runs a handler:
    bool m_known = false; ///< others held the promise when its nodes were taken
    // Of the derived promise:
    bool m_bound = false; ///< waits for the promise that its handler returned
    // Behind the sync queue:
    Node* m_first = nullptr; ///< the handler queue
    Node* m_last = nullptr;
    std::uint64_t m_queueNumber = 0;  ///< 0 until the handler queue is made; never used twice
    std::uint64_t m_parentNumber = 0; ///< the parent's queue number
    std::shared_ptr<const Error> m_error;
    // In the lists of the thread that resumes or disposes:
    Core* m_nextCore = nullptr;
    Node* m_registered = nullptr;
    // Of whoever has the turn:
    Node* m_turns = nullptr; ///< handlers that were taken and have not run
    ExecutionContext m_context;
};

} // namespace lodestar::promise
