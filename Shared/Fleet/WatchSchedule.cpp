// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchSchedule.h"

#include <algorithm>

namespace lodestar
{

void WatchSchedule::setInterval(std::optional<std::chrono::minutes> interval, Moment now)
{
    if (!m_interval) {
        m_from = now;
        m_noticed = now;
        m_notBefore = now;
    }
    m_interval = interval;
}

void WatchSchedule::notice(Moment now)
{
    if (now - m_noticed > 4 * step) {
        m_notBefore = now + afterWaking;
    }
    m_noticed = now;
}

std::optional<WatchSchedule::Moment> WatchSchedule::due() const
{
    if (!m_interval) {
        return std::nullopt;
    }
    return std::max(m_from + *m_interval, m_notBefore);
}

} // namespace lodestar
