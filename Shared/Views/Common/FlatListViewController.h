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
/// A subclass gives the text by which its rows are searched and overrides `adopt`, which calls `append`.
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
    std::vector<XMLElement> elementsOfTable(TableKind tableView) const override;
    XMLElement elementOfRow(TableKind tableView, IndexPath indexPath) const override
    {
        return elementAtRow(tableView, indexPath.row);
    }
    void emptyLists() override;
    RXPromise<std::string> showFeed(const Feed& feed, Turn turn, Source source) override;
    /// Takes over the rows that were made of the feed and shows it. Main thread.
    virtual void adopt(ElementList rows, const Feed& feed) = 0;
    /// Appends the rows to the list. Nothing is cleared here: lists are emptied before each fetch.
    void append(ElementList rows) { m_list.append(std::move(rows)); }
    /// The rows of the record's feed.
    ElementList storedRows() const { return elementsOf(feed(), type(), m_searchText); }

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
