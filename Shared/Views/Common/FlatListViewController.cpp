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

void FlatListViewController::appendStoredFeed()
{
    ElementList list;
    const Feed stored = feed();
    for (const XMLElement& entry : stored.entries()) {
        XMLElement element = entry.path({"content", type()});
        // An entry of another type has no row.
        if (element) {
            const std::string searchText = searchTextOf(element);
            list.append(std::move(element), searchText);
        }
    }
    onMainThread<FlatListViewController>(
        [list = std::move(list)](FlatListViewController& screen) mutable { screen.m_list.append(std::move(list)); });
}

void FlatListViewController::filterContentForSearchText(const QString& searchText, const QString& /*scope*/)
{
    m_filteredList = m_list.containing(searchText.toStdString());
}

int FlatListViewController::numberOfRowsInSection(TableKind tableView, int /*section*/) const
{
    if (m_list.empty() || feed().isNA()) {
        return 0;
    }
    return static_cast<int>(tableView == TableKind::SearchResults ? m_filteredList.size() : m_list.size());
}

XMLElement FlatListViewController::elementAtRow(TableKind tableView, int row) const
{
    return elementAt(tableView == TableKind::SearchResults ? m_filteredList : m_list.elements(), row);
}

} // namespace lodestar
