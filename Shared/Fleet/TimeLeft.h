// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>

namespace lodestar
{

/// How long work of many parts will still take, judged by how long its parts took so far: smoothed, so that it does
/// not jump, and rounded, so that it promises no more than it knows. One thread.
class TimeLeft
{
public:
    using Clock = std::chrono::steady_clock;

    explicit TimeLeft(Clock::time_point begin = Clock::now()) : m_begin(begin), m_lastLook(begin), m_lastDone(begin) {}

    /// None in the first two seconds, before the first part is done, and once nothing more was done for longer than was
    /// left: the last parts wait for something else then. Steps of 5 s, from a minute on of a minute.
    std::optional<std::chrono::seconds> look(std::size_t done, std::size_t parts, Clock::time_point now);

private:
    Clock::time_point m_begin;
    Clock::time_point m_lastLook;
    Clock::time_point m_lastDone; ///< when a look first saw the present number
    std::size_t m_done = 0;
    std::optional<double> m_seconds; ///< as of the last look
};

} // namespace lodestar
