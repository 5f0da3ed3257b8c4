// SPDX-License-Identifier: Apache-2.0
#include "Inventory/GroupedFeed.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

ElementList& GroupedFeed::listOf(const std::string& system)
{
    const auto [place, isNew] = m_indexes.try_emplace(system, m_groups.size());
    if (isNew) {
        m_groups.push_back({system, ElementList(m_searchText)});
    }
    return m_groups[place->second].list;
}

void GroupedFeed::append(const std::string& system, XMLElement element)
{
    listOf(system).append(std::move(element));
}

void GroupedFeed::append(GroupedFeed&& others)
{
    for (Group& group : others.m_groups) {
        listOf(group.system).append(std::move(group.list));
    }
    others.clear();
}

void GroupedFeed::clear()
{
    *this = GroupedFeed(m_searchText);
}

void GroupedFeed::prepareSearch()
{
    for (Group& group : m_groups) {
        group.list.prepareSearch();
    }
}

std::string GroupedFeed::keyAt(std::size_t group) const
{
    return group < m_groups.size() ? m_groups[group].system : std::string();
}

const std::vector<XMLElement>& GroupedFeed::elementsAt(std::size_t group) const
{
    static const std::vector<XMLElement> none;
    return group < m_groups.size() ? m_groups[group].list.elements() : none;
}

std::optional<std::size_t> GroupedFeed::groupOf(const std::string& system) const
{
    const auto found = m_indexes.find(system);
    return found != m_indexes.end() ? std::optional(found->second) : std::nullopt;
}

GroupedFeed GroupedFeed::containing(std::string_view text)
{
    GroupedFeed found(m_searchText);
    for (Group& group : m_groups) {
        for (XMLElement& element : group.list.containing(text)) {
            found.append(group.system, std::move(element));
        }
    }
    return found;
}

GroupedFeed groupedBySystem(const Feed& feed, std::string_view type,
                            const std::vector<std::optional<std::string>>& systems, SearchText searchText)
{
    GroupedFeed groups(searchText);
    const std::vector<XMLElement> entries = feed.entries();
    for (std::size_t i = 0; i < std::min(entries.size(), systems.size()); ++i) {
        XMLElement element = contentOf(entries[i], type);
        if (element && systems[i]) {
            groups.append(*systems[i], std::move(element));
        }
    }
    return groups;
}

} // namespace lodestar
