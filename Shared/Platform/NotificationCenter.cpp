// SPDX-License-Identifier: Apache-2.0
#include "Platform/NotificationCenter.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace lodestar
{

namespace
{
using Observer = std::shared_ptr<const std::function<void()>>;
} // namespace

struct NotificationCenter::State {
    std::map<std::string, std::vector<Observer>> observers;

    void remove(const std::string& name, const Observer& observer)
    {
        const auto found = observers.find(name);
        if (found == observers.end()) {
            return;
        }
        std::erase(found->second, observer);
        if (found->second.empty()) {
            observers.erase(found);
        }
    }
};

NotificationCenter::NotificationCenter() : m_state(std::make_shared<State>()) {}

NotificationCenter& NotificationCenter::defaultCenter()
{
    // Never destroyed: screens that live until the process ends still end their observations then.
    static auto& center = *new NotificationCenter;
    return center;
}

NotificationCenter::Observation NotificationCenter::addObserver(const std::string& name, std::function<void()> observer)
{
    auto shared = std::make_shared<const std::function<void()>>(std::move(observer));
    m_state->observers[name].push_back(shared);
    // The token keeps nothing alive; only its deleter matters.
    return {static_cast<void*>(m_state.get()),
            [state = std::weak_ptr(m_state), name, shared = std::move(shared)](void*) mutable {
                if (const auto alive = state.lock()) {
                    alive->remove(name, shared);
                }
                shared.reset();
            }};
}

void NotificationCenter::postNotification(const std::string& name)
{
    const auto found = m_state->observers.find(name);
    if (found == m_state->observers.end()) {
        return;
    }
    // Iterates over a copy: observers add and remove observers while they are called.
    const std::vector<Observer> observers = found->second;
    for (const Observer& observer : observers) {
        (*observer)();
    }
}

} // namespace lodestar
