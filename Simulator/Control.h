// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Simulator.h"
#include "Simulator/StoryTeller.h"

#include <string>
#include <string_view>

namespace lodestar::simulator
{

/// Controls a simulator by commands, one a line. Each command is answered by any number of lines and then "ok", or by
/// "error" and a text encoded as one word.
class Control
{
public:
    /// The story is null when there is none.
    Control(EventLoop& loop, Simulator& simulator, StoryTeller* story = nullptr)
        : m_loop(loop), m_simulator(simulator), m_story(story)
    {
    }

    /// The lines that a started simulator prints: addresses, credentials and the names that a story gives,
    /// the receiver's address if there is one, "ready".
    std::string greeting() const;
    /// Takes input in any pieces and returns the answers to every line that is now complete.
    std::string feed(std::string_view bytes);

private:
    std::string answer(std::string_view line);
    std::string run(const std::vector<std::string>& words);
    void advance(const std::vector<std::string>& words);

    EventLoop& m_loop;
    Simulator& m_simulator;
    StoryTeller* m_story;
    std::string m_input;
};

} // namespace lodestar::simulator
