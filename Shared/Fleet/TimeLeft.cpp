// SPDX-License-Identifier: Apache-2.0
#include "Fleet/TimeLeft.h"

#include <cmath>
#include <utility>

namespace lodestar
{
namespace
{

constexpr std::chrono::seconds tooEarly{2};
/// How fast a new estimate replaces an old one, in seconds.
constexpr double smoothing = 3;

double secondsBetween(TimeLeft::Clock::time_point from, TimeLeft::Clock::time_point until)
{
    return std::chrono::duration<double>(until - from).count();
}

} // namespace

std::optional<std::chrono::seconds> TimeLeft::look(std::size_t done, std::size_t parts, Clock::time_point now)
{
    if (std::exchange(m_done, done) != done) {
        m_lastDone = now;
    }
    if (done == 0 || done >= parts || now - m_begin < tooEarly) {
        return std::nullopt;
    }
    const double fresh = secondsBetween(m_begin, now) * static_cast<double>(parts - done) / static_cast<double>(done);
    const double passed = secondsBetween(m_lastLook, now);
    if (!m_seconds) {
        m_seconds = fresh;
    } else {
        const double weight = 1 - std::exp(-passed / smoothing);
        *m_seconds += (fresh - *m_seconds) * weight;
    }
    m_lastLook = now;
    const double step = *m_seconds > 60 ? 60 : 5;
    const std::chrono::seconds left(std::lround(std::ceil(*m_seconds / step) * step));
    return now - m_lastDone > left ? std::nullopt : std::optional(left);
}

} // namespace lodestar
