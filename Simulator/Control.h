// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Simulator.h"

#include <string>
#include <string_view>

namespace lodestar::simulator
{

/// Steers a simulator by lines of words: every command is answered with any number of lines and then "ok", or with
/// "error" and one word of text.
class Control
{
public:
    Control(EventLoop& loop, Simulator& simulator) : m_loop(loop), m_simulator(simulator) {}

    /// The addresses with their credentials, the receiver's address if there is one, and "ready".
    std::string greeting() const;
    /// Takes input as it comes and answers every line that has become whole.
    std::string feed(std::string_view bytes);

private:
    std::string answer(std::string_view line);
    std::string run(const std::vector<std::string>& words);

    EventLoop& m_loop;
    Simulator& m_simulator;
    std::string m_input;
};

} // namespace lodestar::simulator
