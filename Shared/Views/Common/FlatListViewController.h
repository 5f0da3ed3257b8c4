// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/ElementList.h"
#include "Views/Common/FeedListViewController.h"

#include <cstdint>
#include <vector>

namespace lodestar
{

/// A list with one section: the feed's elements in the order of the feed, not sorted.
///
/// A subclass gives the text by which its rows are searched and overrides `showFeed`, which calls `appendStoredFeed`.
class FlatListViewController : public lodestar::FeedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    FlatListViewController(const FeedListTraits& traits, SearchText searchText)
        : FeedListViewController(traits), m_searchText(searchText), m_list(searchText)
    {
    }

    void filterContentForSearchText(const QString& searchText, const QString& scope) override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;

protected:
    void emptyLists() override;
    /// Appends the elements of the stored feed to the list, unless the turn is over. Nothing is cleared here: lists are
    /// emptied before each fetch. Any thread.
    void appendStoredFeed(Turn turn);

    const std::vector<XMLElement>& elements() const { return m_list.elements(); }
    /// The search results, as indexes into `elements`.
    const std::vector<std::uint32_t>& filteredElements() const { return m_filteredList; }
    /// The element of a table's row; no element for a row that does not exist.
    XMLElement elementAtRow(TableKind tableView, int row) const;

private:
    const SearchText m_searchText;
    ElementList m_list;
    std::vector<std::uint32_t> m_filteredList;
};

} // namespace lodestar
