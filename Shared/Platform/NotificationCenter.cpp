// SPDX-License-Identifier: Apache-2.0
#include "Platform/NotificationCenter.h"

#include <utility>

namespace lodestar
{

NotificationCenter& NotificationCenter::defaultCenter()
{
    // Never destroyed: screens that live until the process ends still end their observations then.
    static auto& center = *new NotificationCenter;
    return center;
}

NotificationCenter::Observation NotificationCenter::addObserver(const std::string& name, std::function<void()> observer)
{
    const auto shared = std::make_shared<const std::function<void()>>(std::move(observer));
    m_observers[name].push_back(shared);
    // Only the token's deleter matters.
    return {static_cast<void*>(this), [this, name, shared](void*) { std::erase(m_observers[name], shared); }};
}

void NotificationCenter::postNotification(const std::string& name)
{
    // Iterates over a copy: observers add and remove observers while they are called.
    const std::vector<Observer> observers = m_observers[name];
    for (const Observer& observer : observers) {
        (*observer)();
    }
}

} // namespace lodestar
