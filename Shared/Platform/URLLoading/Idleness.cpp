// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/Idleness.h"

namespace lodestar
{

namespace
{

constexpr int idlePercent = 90;

} // namespace

void Idleness::reset(Clock::time_point now)
{
    m_start = now;
    m_waited = {};
    m_isIdle = false;
}

void Idleness::waited(Clock::time_point from, Clock::time_point until)
{
    m_waited += until - from;
    if (const auto watched = until - m_start; watched >= period) {
        const bool isIdle = m_waited * 100 >= watched * idlePercent;
        reset(until);
        m_isIdle = isIdle;
    }
}

} // namespace lodestar
