// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Menu.h"
#include "Views/Common/ElementList.h"
#include "Views/Common/FeedListViewController.h"

#include <vector>

namespace lodestar
{

/// The managed systems of a console, in the order of the feed, with a state text and badges. A row opens an action
/// sheet with what can be seen of the system; swiping it, a long press or the menu key offer its menu screen.
class MSListViewController : public lodestar::FeedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::MenuOutlet* actionSheet READ actionSheet CONSTANT)

public:
    MSListViewController();

    MenuOutlet* actionSheet() { return &m_actionSheet; }
    const std::vector<XMLElement>& MSList() const { return m_MSList.elements(); }
    const std::vector<XMLElement>& filteredMSList() const { return m_filteredMSList; }

    /// Appends the systems of the stored feed. It does not clear: a fetch that ends while another is under way lists
    /// its systems behind the other's. Any thread.
    void createMSList();
    void filterContentForSearchText(const QString& searchText, const QString& scope) override;

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// A swiped row's button. Always true: the row closes again.
    bool tappedButtonAtIndex(TableKind tableView, int row, int index);
    Q_INVOKABLE bool swipeTableCell(bool inSearchResults, int row, int tappedButtonAtIndex);

protected:
    void showFeed(const XMLElement& feedRoot) override;
    void emptyLists() override;

private:
    XMLElement systemAt(TableKind tableView, int row) const;
    void openItem(int index, const XMLElement& system);

    ElementList m_MSList;
    std::vector<XMLElement> m_filteredMSList;
    MenuOutlet m_actionSheet;
};

} // namespace lodestar
