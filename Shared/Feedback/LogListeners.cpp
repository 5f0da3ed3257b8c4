// SPDX-License-Identifier: Apache-2.0
#include "Feedback/LogListeners.h"

#include <utility>

namespace lodestar
{

namespace
{

/// True while this thread is inside a listener. Lines that a listener logs reach no listener: the same listener would
/// be called without end, and another listener may be running on a thread that waits for this one.
thread_local bool notifying = false;

struct NotifyingScope {
    NotifyingScope() { notifying = true; }
    ~NotifyingScope() { notifying = false; }
    NotifyingScope(const NotifyingScope&) = delete;
    NotifyingScope& operator=(const NotifyingScope&) = delete;
};

} // namespace

LogListeners& LogListeners::shared()
{
    static auto& listeners = *new LogListeners; // never destroyed: threads log until the very end
    return listeners;
}

std::shared_ptr<void> LogListeners::add(Function function)
{
    auto listener = std::make_shared<Listener>();
    listener->function = std::move(function);
    {
        const std::lock_guard lock(m_mutex);
        auto list = std::make_shared<List>(*m_list);
        list->push_back(listener);
        m_list = std::move(list);
    }
    return {static_cast<void*>(listener.get()), [this, listener](void*) {
                {
                    const std::lock_guard listLock(m_mutex);
                    auto remaining = std::make_shared<List>(*m_list);
                    std::erase(*remaining, listener);
                    m_list = std::move(remaining);
                }
                const std::lock_guard listenerLock(listener->mutex); // waits for a running call to end
                listener->ended = true;
            }};
}

void LogListeners::notify(const LogEntry& entry)
{
    if (notifying) {
        return;
    }
    std::shared_ptr<const List> list;
    {
        const std::lock_guard lock(m_mutex);
        list = m_list;
    }
    const NotifyingScope scope;
    for (const auto& listener : *list) {
        const std::lock_guard lock(listener->mutex);
        if (!listener->ended) {
            listener->function(entry);
        }
    }
}

} // namespace lodestar
