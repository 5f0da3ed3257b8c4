// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/FlatListViewController.h"

#include <utility>

namespace lodestar
{

void FlatListViewController::emptyLists()
{
    m_list.clear();
    m_filteredList.clear();
}

RXPromise<std::string> FlatListViewController::showFeed(const Feed& feed, Turn turn, Source /*source*/)
{
    return makeRows<FlatListViewController>(
        turn,
        [feed, type = type(), searchText = m_searchText] {
            ElementList rows = elementsOf(feed, type, searchText);
            rows.prepareSearch();
            return rows;
        },
        [feed](FlatListViewController& screen, ElementList rows) { screen.adopt(std::move(rows), feed); });
}

void FlatListViewController::filterContentForSearchText(const QString& searchText, const QString& /*scope*/)
{
    m_filteredList = m_list.rowsContaining(searchText.toStdString());
}

int FlatListViewController::numberOfRowsInSection(TableKind tableView, int /*section*/) const
{
    if (m_list.empty() || feed().isNA()) {
        return 0;
    }
    return static_cast<int>(tableView == TableKind::SearchResults ? m_filteredList.size() : m_list.size());
}

std::vector<XMLElement> FlatListViewController::elementsOfTable(TableKind tableView) const
{
    std::vector<XMLElement> rows;
    const int count = numberOfRowsInSection(tableView, 0);
    rows.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        rows.push_back(elementAtRow(tableView, row));
    }
    return rows;
}

XMLElement FlatListViewController::elementAtRow(TableKind tableView, int row) const
{
    return tableView == TableKind::SearchResults ? elementAt(elements(), m_filteredList, row)
                                                 : elementAt(elements(), row);
}

} // namespace lodestar
