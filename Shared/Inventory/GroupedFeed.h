// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/ElementList.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lodestar
{

/// A feed's elements, grouped by the managed systems that they belong to. The keys are the systems' names in the order
/// in which they were first appended, which is the order of the sections; elements keep the feed's order. A value,
/// handed over as an `ElementList` is.
class GroupedFeed
{
public:
    explicit GroupedFeed(SearchText searchText) : m_searchText(searchText) {}

    void append(const std::string& system, XMLElement element);
    /// Appends each system's elements behind those that the system already has here.
    void append(GroupedFeed&& others);
    void clear();
    void prepareSearch();
    std::size_t groupCount() const { return m_groups.size(); }
    /// Empty when there is no such group.
    std::string keyAt(std::size_t group) const;
    const std::vector<XMLElement>& elementsAt(std::size_t group) const;
    std::optional<std::size_t> groupOf(const std::string& system) const;
    /// For each key the elements whose search text contains the text, case ignored. A key without such elements is left
    /// out.
    GroupedFeed containing(std::string_view text);

private:
    struct Group {
        std::string system;
        ElementList list;
    };
    ElementList& listOf(const std::string& system);

    SearchText m_searchText;
    std::vector<Group> m_groups;
    std::unordered_map<std::string, std::size_t> m_indexes;
};

/// What a feed holds of a type, under the systems' names: the rows of a grouped list. `systems` has a name for each of
/// the feed's first entries; entries without one, and those behind, are left out. Any thread.
GroupedFeed groupedBySystem(const Feed& feed, std::string_view type,
                            const std::vector<std::optional<std::string>>& systems, SearchText searchText);

} // namespace lodestar
