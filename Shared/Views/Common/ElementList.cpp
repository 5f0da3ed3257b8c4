// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/ElementList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lodestar
{

void ElementList::append(XMLElement element, std::string_view searchText)
{
    m_elements.push_back(std::move(element));
    m_index.add(searchText);
}

void ElementList::append(ElementList&& others)
{
    if (empty()) {
        *this = std::move(others);
        return;
    }
    std::ranges::move(others.m_elements, std::back_inserter(m_elements));
    m_index.add(others.m_index);
}

void ElementList::clear()
{
    *this = {};
}

std::vector<XMLElement> ElementList::containing(std::string_view text) const
{
    const std::vector<std::size_t> rows = m_index.rowsContaining(text);
    std::vector<XMLElement> found;
    found.reserve(rows.size());
    std::ranges::transform(rows, std::back_inserter(found), [this](std::size_t row) { return m_elements[row]; });
    return found;
}

XMLElement elementAt(const std::vector<XMLElement>& elements, int row)
{
    const auto index = static_cast<std::size_t>(row);
    return row >= 0 && index < elements.size() ? elements[index] : XMLElement();
}

} // namespace lodestar
