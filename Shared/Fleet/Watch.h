// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/WatchNews.h"
#include "Fleet/WatchSettings.h"
#include "Platform/MessageService.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace lodestar
{

class WatchSurroundings;

/// Reads every console again at an interval, as the console list's pull does, and tells what changed. Off at first. One
/// for the process. Main thread.
class Watch
{
public:
    static Watch& shared();
    /// For tests: a watch over other surroundings than the process's.
    explicit Watch(std::shared_ptr<WatchSurroundings> surroundings);
    ~Watch();

    const WatchSettings& settings() const;
    /// Keeps the settings and acts on them at once. Posts "WatchDidChange".
    void setSettings(WatchSettings settings);
    /// From when on something read counts as old: the interval, or an hour while the watch is off. What a refresh takes
    /// is added, so that nothing looks old while it is being read again.
    std::chrono::seconds oldAge() const;
    /// When the next refresh begins; none while off, while one runs, or while the network is absent or metered.
    std::optional<WallTime> nextRefresh() const;
    /// Consoles whose certificate changed within an attempt: left out until a refresh by hand succeeds.
    std::vector<CorvelRef> leftOut() const;
    /// A person's refresh of the console has ended.
    void didRefreshByHand(const Corvel& corvel);

    /// Whether this system can show messages.
    bool showsMessages() const;
    void sendTestMessage();

    /// Makes the words of a message; `counts` says that names, addresses and texts must stay out. Set before `start`.
    using Words = std::function<Message(const WatchNews& news, bool counts)>;
    using TestWords = std::function<Message()>;
    void setWords(Words words, TestWords testWords);
    /// What a tap on a message does.
    void setOpen(std::function<void()> open);
    /// Reads the settings from the history and begins. Main thread, once the history is open and the services for
    /// messages and the network are installed.
    void start();
    void stop();

private:
    struct State;
    const std::shared_ptr<State> m_state;
};

} // namespace lodestar
