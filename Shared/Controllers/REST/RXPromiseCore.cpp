// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RXPromiseCore.h"

#include <cstdio>

namespace lodestar::promise
{

namespace
{

/// A thread's list of promises to work through. Settling a promise can settle promises bound to it, and freeing one can
/// free others that only it held, each to any depth; the list replaces recursion. Each core holds the link to the next.
struct WorkList {
    Core* first = nullptr;
    Core* last = nullptr;
    bool active = false;
};
constinit thread_local WorkList t_resume;
constinit thread_local WorkList t_dispose;

/// Guarded by the sync queue.
constinit std::uint64_t s_lastQueueNumber = 0;

} // namespace

Error errorWithReason(std::string_view reason)
{
    return {"RXPromise", -1000, {}, std::string(reason), nullptr};
}

void Core::settleWithError(State state, std::shared_ptr<const Error> error)
{
    settle(state, [&] { m_error = std::move(error); });
}

void Core::settleWithError(State state, Error error)
{
    settleWithError(state, std::make_shared<const Error>(std::move(error)));
}

std::string Core::handlerQueueLabel() const
{
    const bool made = SharedSyncQueue::sync([this] { return m_queueNumber != 0; });
    if (!made) {
        return {};
    }
    char label[64];
    std::snprintf(label, sizeof label, "RXPromise.handler_queue-%p", static_cast<const void*>(this));
    return label;
}

bool Core::isDerivedFrom(const Core& parent) const
{
    return SharedSyncQueue::sync([&] { return parent.m_queueNumber != 0 && m_parentNumber == parent.m_queueNumber; });
}

void Core::registerDerived(Ref<Core> derived)
{
    Core* const core = derived.detach();
    addNode(*core, core);
}

/// One handler's turn, on its way to the handler's context. The turn passes on when the handler has run, and also when
/// the context drops the block without running it: handlers in other contexts still wait.
class Core::Turn
{
public:
    Turn(Ref<Core> derived, Ref<Core> parent) : m_derived(std::move(derived)), m_parent(std::move(parent)) {}
    Turn(Turn&&) noexcept = default;
    Turn& operator=(Turn&&) = delete;
    ~Turn()
    {
        m_derived = {};
        if (m_parent.get() != nullptr) {
            m_parent->passTurn();
        }
    }

    void operator()() { m_derived->runHandler(*m_parent); }

private:
    Ref<Core> m_derived;
    Ref<Core> m_parent;
};

/// When an earlier handler is handed out or running, the new one waits for its turn, so that handlers always run in the
/// order of registration.
void Core::addNode(Node& node, Core* derived)
{
    enum class Place { Queue, AtOnce, First };
    const Place place = SharedSyncQueue::sync([&] {
        if (m_queueNumber == 0) {
            m_queueNumber = ++s_lastQueueNumber;
        }
        if (derived != nullptr) {
            derived->m_parentNumber = m_queueNumber;
        }
        if (m_state != State::Pending && derived == nullptr) {
            return Place::AtOnce;
        }
        if (m_state != State::Pending && !m_resuming) {
            m_resuming = true;
            m_known = true;
            return Place::First;
        }
        (m_last == nullptr ? m_first : m_last->m_next) = &node;
        m_last = &node;
        return Place::Queue;
    });
    if (place == Place::AtOnce) {
        node.parentSettled(*this);
    } else if (place == Place::First) {
        m_turns = &node;
        passTurn();
    }
}

void Core::resumeHandlerQueue(Node& registered)
{
    if (t_resume.active) {
        retain();
        m_registered = &registered;
        (t_resume.last == nullptr ? t_resume.first : t_resume.last->m_nextCore) = this;
        t_resume.last = this;
        return;
    }
    t_resume.active = true;
    handOut(&registered);
    while (t_resume.first != nullptr) {
        const auto core = Ref<Core>::adopt(t_resume.first);
        t_resume.first = std::exchange(core->m_nextCore, nullptr);
        if (t_resume.first == nullptr) {
            t_resume.last = nullptr;
        }
        core->handOut(std::exchange(core->m_registered, nullptr));
    }
    t_resume.active = false;
}

/// Runs on the thread that settles, which has the turn.
void Core::handOut(Node* node)
{
    Node** last = &m_turns;
    while (node != nullptr) {
        Node* const next = std::exchange(node->m_next, nullptr);
        if (node->takesTurn()) {
            *last = node;
            last = &node->m_next;
        } else {
            node->parentSettled(*this);
        }
        node = next;
    }
    passTurn();
}

/// The next handler, for the owner of the turn. Null frees the turn.
Core* Core::takeNext()
{
    // When nobody else held the promise while the nodes were taken, no handler can have been registered since. Waiting
    // turns hold references, too, but register nothing.
    if (m_turns == nullptr && m_known) {
        if (Node* const taken = SharedSyncQueue::sync([this] { return takeNodes(); })) {
            m_turns = taken;
        } else {
            return nullptr;
        }
    }
    Node* const next = m_turns;
    if (next != nullptr) {
        m_turns = std::exchange(next->m_next, nullptr);
    }
    return static_cast<Core*>(next);
}

void Core::passTurn()
{
    if (auto next = Ref<Core>::adopt(takeNext()); next.get() != nullptr) {
        // Moved out first: the block may run, and free the derived promise, before the call returns.
        const ExecutionContext context = std::move(next->m_context);
        context.dispatchBlock(Turn(std::move(next), Ref<Core>(*this)));
    }
}

/// Called when the promise that the handler returned has settled.
void Core::parentSettled(Core& parent)
{
    const auto self = Ref<Core>::adopt(this);
    adopt(parent);
}

void Core::parentGone()
{
    // The handlers can never run any more. Their captures are freed now even if somebody holds this promise, since the
    // captures may be what holds it.
    dropHandlers();
    release();
}

void Core::runHandler(Core&) {}

void Core::bind(Core& other)
{
    if (&other == this) {
        settleWithError(State::Rejected, errorWithReason("A promise cannot wait for itself"));
        return;
    }
    m_bound = true;
    retain();
    other.addNode(*this);
}

void Core::adopt(const Core& other)
{
    if (other.m_state == State::Fulfilled) {
        adoptValue(other);
    } else {
        settleWithError(other.m_state, other.m_error);
    }
}

void Core::dispose(Core& core)
{
    if (t_dispose.active) {
        core.m_nextCore = std::exchange(t_dispose.first, &core);
        return;
    }
    t_dispose.active = true;
    Core* next = &core;
    while (next != nullptr) {
        next->abandonNodes();
        delete next;
        next = t_dispose.first;
        if (next != nullptr) {
            t_dispose.first = next->m_nextCore;
        }
    }
    t_dispose.active = false;
}

void Core::abandonNodes()
{
    for (Node* node = std::exchange(m_first, nullptr); node != nullptr;) {
        Node* const next = std::exchange(node->m_next, nullptr);
        node->parentGone();
        node = next;
    }
}

} // namespace lodestar::promise
