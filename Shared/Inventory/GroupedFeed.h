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

/// Some of a feed's elements under the managed systems that they belong to: what a search found.
struct ElementGroup {
    std::string system;
    std::vector<XMLElement> elements;
};

/// A feed's elements under the managed systems that they belong to. Its keys are the systems' names in the order in
/// which they first came, which is the order of the sections; elements keep the order of the feed. A value, to be
/// handed over like an `ElementList`.
class GroupedFeed
{
public:
    explicit GroupedFeed(SearchText searchText) : m_searchText(searchText) {}

    void append(const std::string& system, XMLElement element);
    /// Each system's elements behind those that it already has here.
    void append(GroupedFeed&& others);
    void clear();
    void prepareSearch();
    std::size_t groupCount() const { return m_groups.size(); }
    /// Empty for a group that is not there.
    std::string keyAt(std::size_t group) const;
    const std::vector<XMLElement>& elementsAt(std::size_t group) const;
    std::optional<std::size_t> groupOf(const std::string& system) const;
    /// Per key the elements whose search text contains the text, case ignored. A key without any is left out.
    std::vector<ElementGroup> containing(std::string_view text);

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

} // namespace lodestar
