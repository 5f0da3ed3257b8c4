// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/WatchNight.h"
#include "Platform/MessageService.h"

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace lodestar
{

class WatchSurroundings;

/// Says what the watch found: at once, or after quiet hours in one sum, which waits in the history for the case that
/// the process ends during the night. Main thread.
class WatchVoice
{
public:
    /// As those of `Watch`.
    using Words = std::function<Message(const WatchNews& news, bool counts)>;
    using TestWords = std::function<Message()>;

    explicit WatchVoice(std::shared_ptr<WatchSurroundings> stage) : m_stage(std::move(stage)) {}

    void setWords(Words words, TestWords testWords);
    void sendTest() const;

    /// Reads the night that the run before kept.
    void readNight();
    bool hasNight() const { return !m_night.empty(); }
    void clearNight();
    void keepOnly(const std::set<std::string>& addresses);

    /// Says the news, unless the hours are quiet or a night waits for its sum: a message of their own would replace it.
    void tell(const WatchNews& news, const Findings& findings, bool isQuiet);
    /// Says the sum of a night that is over.
    void tellNight(const Findings& findings);

private:
    void show(const WatchNews& news) const;
    void keepNight();

    const std::shared_ptr<WatchSurroundings> m_stage;
    WatchNight m_night;
    Words m_words;
    TestWords m_testWords;
};

} // namespace lodestar
