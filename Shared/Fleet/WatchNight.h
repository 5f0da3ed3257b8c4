// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/WatchNews.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// Collects what got worse in quiet hours. A thing that changes all night is one, so this does not grow with time.
class WatchNight
{
public:
    bool empty() const { return m_worse.empty(); }
    void add(const std::vector<Change>& worse);
    void clear() { m_worse.clear(); }
    /// Keeps only what is about a console with one of the addresses.
    void keepOnly(const std::set<std::string>& addresses);
    /// The sum, and no more of it afterwards.
    WatchNews sum(const Findings& findings);

    /// The night as a text, for the case that the process does not live to see the morning: names, addresses and states
    /// as the history keeps them anyway. What does not fit is left out.
    std::string text() const;
    static constexpr std::size_t longestText = 1024UL * 1024;
    /// The night of a text that `text` made, without lines that cannot be read and without what is so old that it
    /// belongs to a night before the last.
    static WatchNight ofText(std::string_view text, WallTime now);

private:
    std::map<WatchedThing, Change> m_worse;
};

} // namespace lodestar
