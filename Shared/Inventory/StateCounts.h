// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lodestar
{

/// Counts how often each text occurs, and keeps the texts in the order of their first occurrence: charts give colours
/// by position, so the same feeds always get the same colours.
class StateCounts
{
public:
    using Entry = std::pair<std::string, int>;

    void add(std::string state)
    {
        const auto [place, isNew] = m_places.try_emplace(state, m_entries.size());
        if (isNew) {
            m_entries.emplace_back(std::move(state), 1);
        } else {
            ++m_entries[place->second].second;
        }
    }
    const std::vector<Entry>& entries() const { return m_entries; }

private:
    std::vector<Entry> m_entries;
    std::unordered_map<std::string, std::size_t> m_places;
};

} // namespace lodestar
