// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FailedLookUps.h"

namespace lodestar
{

std::optional<FeedReading> FailedLookUps::add(const std::string& link, const FeedReading& lookUp,
                                              const FeedReading& shown)
{
    if (lookUp.error) {
        if (m_byLink.empty()) {
            if (shown.error) {
                return std::nullopt; // the feed itself is missing, which says more
            }
            m_before = shown;
        }
        m_byLink.insert_or_assign(link, lookUp);
    } else if (m_byLink.erase(link) == 0) {
        return std::nullopt;
    }
    FeedReading becomes = m_before;
    if (!m_byLink.empty()) {
        const FeedReading& failed = lookUp.error ? lookUp : m_byLink.begin()->second;
        becomes.began = failed.began;
        becomes.duration = failed.duration;
        becomes.status = failed.status;
        becomes.error = failed.error;
        becomes.failedLookUps = m_byLink.size();
    }
    return becomes;
}

} // namespace lodestar
