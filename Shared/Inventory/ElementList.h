// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Feed.h"
#include "Inventory/SearchIndex.h"
#include "XML/XMLElement.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar
{

/// The text of an element that a search looks into, which the element's row shows. Must always be the same for the same
/// element. Any thread.
using SearchText = std::string (*)(const XMLElement& element);

/// The elements behind a list's rows, in order, with their search texts. A value: a worker makes it and hands it to the
/// main thread; only the main thread reads and changes the one that a screen holds.
class ElementList
{
public:
    explicit ElementList(SearchText searchText) : m_searchText(searchText) {}

    void append(XMLElement element) { m_elements.push_back(std::move(element)); }
    /// Both lists must have the same search text function.
    void append(ElementList&& others);
    void clear();
    const std::vector<XMLElement>& elements() const { return m_elements; }
    bool empty() const { return m_elements.empty(); }
    std::size_t size() const { return m_elements.size(); }
    /// Makes the search texts, which the first search would make otherwise. Takes about as long as making the list.
    void prepareSearch();
    /// The rows whose search text contains the text, case ignored, in order.
    std::vector<std::uint32_t> rowsContaining(std::string_view text);
    /// The elements of these rows. Each keeps a share of the document, which costs time when most elements are found.
    std::vector<XMLElement> containing(std::string_view text);

private:
    SearchText m_searchText;
    std::vector<XMLElement> m_elements;
    SearchIndex m_index; ///< covers the first elements only, or none: most lists are never searched
};

/// The elements of a type in a feed, in its order: the rows of a list. Entries of other types give none, nor does "NA".
/// Any thread.
ElementList elementsOf(const Feed& feed, std::string_view type, SearchText searchText);

/// The element of a row; no element when the row does not exist (any more): a drawn table may ask for rows of a list
/// that was emptied meanwhile.
XMLElement elementAt(const std::vector<XMLElement>& elements, int row);
/// Likewise for a row among those that a search found.
XMLElement elementAt(const std::vector<XMLElement>& elements, const std::vector<std::uint32_t>& found, int row);

} // namespace lodestar
