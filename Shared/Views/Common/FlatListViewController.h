// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/ElementList.h"
#include "Views/Common/FeedListViewController.h"

#include <cstdint>
#include <vector>

namespace lodestar
{

/// A list of one section: the feed's elements, in the order of the feed. Nothing is sorted.
///
/// A screen of this kind says what its rows are searched by and overrides `showFeed`, which calls `appendStoredFeed`.
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
    /// Puts the elements of the stored feed behind those that are listed, unless the turn is over. It does not clear:
    /// lists are emptied before each fetch. Any thread.
    void appendStoredFeed(Turn turn);

    const std::vector<XMLElement>& elements() const { return m_list.elements(); }
    /// What the search found, as places in `elements`.
    const std::vector<std::uint32_t>& filteredElements() const { return m_filteredList; }
    /// What stands in a row of that table; no element for a row that is not there.
    XMLElement elementAtRow(TableKind tableView, int row) const;

private:
    const SearchText m_searchText;
    ElementList m_list;
    std::vector<std::uint32_t> m_filteredList;
};

} // namespace lodestar
