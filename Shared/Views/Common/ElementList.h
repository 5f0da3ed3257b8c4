// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/XMLElement.h"
#include "Views/Common/SearchIndex.h"

#include <string_view>
#include <vector>

namespace lodestar
{

/// The elements behind a list's rows, in order, and what each is searched by. A value: a worker makes it whole and
/// hands it to the main thread, where alone the screen's own is read and changed.
class ElementList
{
public:
    /// `searchText` is what a search looks into, as the row shows it.
    void append(XMLElement element, std::string_view searchText);
    void append(ElementList&& others);
    void clear();
    const std::vector<XMLElement>& elements() const { return m_elements; }
    bool empty() const { return m_elements.empty(); }
    std::size_t size() const { return m_elements.size(); }
    /// Those whose search text contains the text, case ignored, in order.
    std::vector<XMLElement> containing(std::string_view text) const;

private:
    std::vector<XMLElement> m_elements;
    SearchIndex m_index;
};

/// No element for a row that is not there (any more): a drawn table may ask for rows of a list that was emptied
/// meanwhile.
XMLElement elementAt(const std::vector<XMLElement>& elements, int row);

} // namespace lodestar
