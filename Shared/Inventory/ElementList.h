// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/SearchIndex.h"
#include "XML/XMLElement.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar
{

/// What a search of an element looks into, as its row shows it. The same for the same element, always. Any thread.
using SearchText = std::string (*)(const XMLElement& element);

/// The elements behind a list's rows, in order, and what each is searched by. A value: a worker makes it whole and
/// hands it to the main thread, where alone the screen's own is read and changed.
class ElementList
{
public:
    explicit ElementList(SearchText searchText) : m_searchText(searchText) {}

    void append(XMLElement element) { m_elements.push_back(std::move(element)); }
    /// Of a list that is searched alike.
    void append(ElementList&& others);
    void clear();
    const std::vector<XMLElement>& elements() const { return m_elements; }
    bool empty() const { return m_elements.empty(); }
    std::size_t size() const { return m_elements.size(); }
    /// Asks for the search texts, which the first search would otherwise do: about as long as making the list.
    void prepareSearch();
    /// The places of those whose search text contains the text, case ignored, in order.
    std::vector<std::uint32_t> rowsContaining(std::string_view text);
    /// Likewise the elements. Each takes its share of the document, which adds up where most are found.
    std::vector<XMLElement> containing(std::string_view text);

private:
    SearchText m_searchText;
    std::vector<XMLElement> m_elements;
    SearchIndex m_index; ///< of the first so many elements: most lists are never searched
};

/// No element for a row that is not there (any more): a drawn table may ask for rows of a list that was emptied
/// meanwhile.
XMLElement elementAt(const std::vector<XMLElement>& elements, int row);
/// Likewise through the places that a search found.
XMLElement elementAt(const std::vector<XMLElement>& elements, const std::vector<std::uint32_t>& found, int row);

} // namespace lodestar
