// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ElementList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lodestar
{

void ElementList::append(ElementList&& others)
{
    if (empty()) {
        *this = std::move(others);
        return;
    }
    std::ranges::move(others.m_elements, std::back_inserter(m_elements));
}

void ElementList::clear()
{
    *this = ElementList(m_searchText);
}

void ElementList::prepareSearch()
{
    while (m_index.size() < m_elements.size()) {
        m_index.add(m_searchText(m_elements[m_index.size()]));
    }
}

std::vector<std::uint32_t> ElementList::rowsContaining(std::string_view text)
{
    prepareSearch();
    return m_index.rowsContaining(text);
}

std::vector<XMLElement> ElementList::containing(std::string_view text)
{
    const std::vector<std::uint32_t> rows = rowsContaining(text);
    std::vector<XMLElement> found;
    found.reserve(rows.size());
    std::ranges::transform(rows, std::back_inserter(found), [this](std::uint32_t row) { return m_elements[row]; });
    return found;
}

ElementList elementsOf(const Feed& feed, std::string_view type, SearchText searchText)
{
    ElementList list(searchText);
    for (const XMLElement& entry : feed.entries()) {
        if (XMLElement element = contentOf(entry, type)) {
            list.append(std::move(element));
        }
    }
    return list;
}

XMLElement elementAt(const std::vector<XMLElement>& elements, int row)
{
    const auto index = static_cast<std::size_t>(row);
    return row >= 0 && index < elements.size() ? elements[index] : XMLElement();
}

XMLElement elementAt(const std::vector<XMLElement>& elements, const std::vector<std::uint32_t>& found, int row)
{
    const auto index = static_cast<std::size_t>(row);
    return row >= 0 && index < found.size() && found[index] < elements.size() ? elements[found[index]] : XMLElement();
}

} // namespace lodestar
