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

void FlatListViewController::appendStoredFeed(Turn turn)
{
    ElementList list(m_searchText);
    const Feed stored = feed();
    for (const XMLElement& entry : stored.entries()) {
        XMLElement element = contentOf(entry, type());
        // An entry of another type gives no element and gets no row.
        if (element) {
            list.append(std::move(element));
        }
    }
    prepareSearchOffMain(list);
    onMainThread<FlatListViewController>([list = std::move(list), turn](FlatListViewController& screen) mutable {
        if (screen.isLast(turn)) {
            screen.m_list.append(std::move(list));
        }
    });
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

XMLElement FlatListViewController::elementAtRow(TableKind tableView, int row) const
{
    return tableView == TableKind::SearchResults ? elementAt(elements(), m_filteredList, row)
                                                 : elementAt(elements(), row);
}

} // namespace lodestar
