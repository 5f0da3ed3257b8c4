// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/LogEntry.h"

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace lodestar
{

/// The functions that receive every logged line. Thread-safe.
class LogListeners
{
public:
    using Function = std::function<void(const LogEntry&)>;

    static LogListeners& shared();

    [[nodiscard]] std::shared_ptr<void> add(Function function);
    void notify(const LogEntry& entry);

private:
    struct Listener {
        std::recursive_mutex mutex; ///< recursive, because a listener may end itself while it runs
        Function function;
        bool ended = false;
    };
    using List = std::vector<std::shared_ptr<Listener>>;

    std::mutex m_mutex;
    std::shared_ptr<const List> m_list = std::make_shared<const List>();
};

} // namespace lodestar
