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
    m_idlePeriods = 0;
}

void Idleness::waited(Clock::time_point from, Clock::time_point until)
{
    m_waited += until - from;
    if (const auto watched = until - m_start; watched >= period) {
        const int idlePeriods = m_waited * 100 >= watched * idlePercent ? m_idlePeriods + 1 : 0;
        reset(until);
        m_idlePeriods = idlePeriods;
    }
}

} // namespace lodestar
