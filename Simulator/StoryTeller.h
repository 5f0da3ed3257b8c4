// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/EventLoop.h"
#include "Simulator/Story.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace lodestar::simulator
{

class Simulator;

/// Lets the story of the simulator's settings happen, on the loop's thread.
class StoryTeller
{
public:
    /// Reads the story and does at once what is due when it begins. Throws what `Story::read` and `Story::check` throw.
    StoryTeller(EventLoop& loop, Simulator& simulator);
    ~StoryTeller();
    StoryTeller(const StoryTeller&) = delete;
    StoryTeller& operator=(const StoryTeller&) = delete;

    std::string nameOf(int console) const { return m_story.nameOf(console); }
    /// Moves the story's clock forward.
    void advance(std::chrono::seconds by);
    /// The function is told each deed when it is done.
    void setNarrator(std::function<void(const std::string&)> narrator) { m_narrator = std::move(narrator); }

private:
    EventLoop::Clock::duration clock() const;
    void catchUp();
    void perform(const Deed& deed);
    void performOn(int console, const Deed& deed);
    void strikeConsole(int console, const Deed& deed);
    void changeCertificate(int console, const Deed& deed);
    void setFault(int console, const std::string& fault);
    void clearFault(int console, const std::string& fault);

    EventLoop& m_loop;
    Simulator& m_simulator;
    Story m_story;
    std::int64_t m_epoch;
    EventLoop::Clock::time_point m_start = EventLoop::Clock::now();
    EventLoop::Clock::duration m_offset;
    int m_timer;
    EventLoop::Watch m_watch;
    std::size_t m_next = 0;
    std::function<void(const std::string&)> m_narrator;
};

} // namespace lodestar::simulator
