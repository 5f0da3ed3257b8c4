// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace lodestar
{

/// Plain named notifications without payload. Main thread only. Observers run at once, in the order in which they were
/// added. An observer that is added or removed during a notification counts from the next notification on.
class NotificationCenter
{
public:
    /// Ends the observation when it is destroyed.
    using Observation = std::shared_ptr<void>;

    static NotificationCenter& defaultCenter();

    [[nodiscard]] Observation addObserver(const std::string& name, std::function<void()> observer);
    void postNotification(const std::string& name);

private:
    NotificationCenter() = default;

    using Observer = std::shared_ptr<const std::function<void()>>;
    std::map<std::string, std::vector<Observer>> m_observers;
};

} // namespace lodestar
