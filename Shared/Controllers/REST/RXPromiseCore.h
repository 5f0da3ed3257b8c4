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

/// The untyped half of `RXPromise`: state, handler queue, lifetime. Users of promises need nothing from here.
namespace lodestar::promise
{

enum class State : std::uint8_t { Pending, Fulfilled, Rejected, Cancelled };

/// The error that promises make themselves.
Error errorWithReason(std::string_view reason);

/// The one serial queue that guards the state of every promise: a lock in the form of a queue, which runs one block at
/// a time on its caller's thread. A block makes a few loads and stores and moves a value into its place; destroying,
/// copying and dispatching happen outside.
class SharedSyncQueue
{
public:
    static constexpr std::string_view label = "RXPromise.shared_sync_queue";
    /// The key whose value identifies the queue. The value is null outside the queue's blocks.
    static constexpr std::string_view queueIdKey = "RXPromise.queue_id";

    static const void* getSpecific(std::string_view key)
    {
        return key == queueIdKey && t_inside ? static_cast<const void*>(&s_mutex) : nullptr;
    }

    /// A call from inside a block runs at once: moving a value may ask a promise something.
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

/// A reference to an object that counts its own references.
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
    /// Gives the reference to the caller without releasing it.
    Counted* detach() { return std::exchange(m_counted, nullptr); }

private:
    Counted* m_counted = nullptr;
};

class Core;

/// An entry of a promise's handler queue. The queue holds one reference to the node's owner. `parentSettled` and
/// `parentGone` take over that reference; each node gets exactly one of the two calls.
class Node
{
public:
    Node() = default;
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    virtual ~Node() = default;

    /// True for a node with handlers: such nodes run one after another. Other nodes wait for none.
    virtual bool takesTurn() const { return false; }
    /// Called on the thread that settles, or that registers on a settled promise, outside the sync queue. Not called
    /// for nodes that take a turn.
    virtual void parentSettled(Core& parent) = 0;
    /// Called when the promise is destroyed unsettled.
    virtual void parentGone() = 0;

private:
    friend class Core;
    Node* m_next = nullptr;
};

/// One promise. A derived promise is itself the node in its parent's handler queue, so that a promise and its handlers
/// are one allocation.
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
    /// Does not use the sync queue: call it only when the promise is known to have settled.
    State settledState() const { return m_state; }
    /// Valid only when rejected or cancelled.
    const std::shared_ptr<const Error>& error() const { return m_error; }

    /// Rejects or cancels; does nothing when already settled.
    void settleWithError(State state, std::shared_ptr<const Error> error);
    void settleWithError(State state, Error error);
    /// Empty until a handler is registered.
    std::string handlerQueueLabel() const;
    bool isDerivedFrom(const Core& parent) const;

    /// Puts the derived promise, whose handlers have not run yet, into the handler queue.
    void registerDerived(Ref<Core> derived);
    /// Settles this promise like `other` when `other` settles.
    void bind(Core& other);
    /// Puts a node into the handler queue, or runs it when the promise has settled. Takes over one reference to the
    /// node's owner.
    void addNode(Node& node) { addNode(node, nullptr); }

protected:
    /// Settles with the value or error that `store` puts in place; `store` runs inside the sync queue. When already
    /// settled, returns false without calling `store`.
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

    /// Calls the handler that matches the settled parent's state, drops both handlers, and settles with the outcome.
    virtual void runHandler(Core& parent);
    /// Frees the handlers' captures.
    virtual void dropHandlers() noexcept {}
    /// Copies the value of `other`, which is fulfilled and holds the same type.
    virtual void adoptValue(const Core& other) = 0;

private:
    class Turn;

    static void dispose(Core& core);
    bool takesTurn() const final { return !m_bound; }
    void parentSettled(Core& parent) final;
    void parentGone() final;
    void addNode(Node& node, Core* derived);
    /// Call inside the sync queue. The queue counts as resuming until the taken nodes have been handed out.
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
    // Guarded by the sync queue:
    State m_state = State::Pending;
    bool m_resuming = false; ///< settled, and some thread has the turn
    // Used only by the owner of the turn, who hands out nodes or runs a handler:
    bool m_known = false; ///< others held the promise when its nodes were taken
    // Used only in a derived promise:
    bool m_bound = false; ///< waits for the promise that its handler returned
    // Guarded by the sync queue:
    Node* m_first = nullptr; ///< the handler queue's first node
    Node* m_last = nullptr;
    std::uint64_t m_queueNumber = 0;  ///< 0 until the handler queue exists; numbers are never reused
    std::uint64_t m_parentNumber = 0; ///< the parent's queue number
    std::shared_ptr<const Error> m_error;
    // Used by the work lists of the thread that resumes or disposes:
    Core* m_nextCore = nullptr;
    Node* m_registered = nullptr;
    // Used only by the owner of the turn:
    Node* m_turns = nullptr; ///< handlers that were taken and have not run
    ExecutionContext m_context;
};

} // namespace lodestar::promise
