// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/ElementList.h"
#include "Views/Common/FeedListViewController.h"

#include <vector>

namespace lodestar
{

/// The serviceable events of a console, in the order of the feed. A row leads to the event's facts.
class SEListViewController : public lodestar::FeedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    SEListViewController();

    const std::vector<XMLElement>& SEList() const { return m_SEList.elements(); }
    const std::vector<XMLElement>& filteredSEList() const { return m_filteredSEList; }

    /// Appends the events of the stored feed and shows the content. Any thread.
    void createSEList();
    void filterContentForSearchText(const QString& searchText, const QString& scope) override;

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Opens the event that the stored feed has at the row's index, whichever table was tapped.
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    void showFeed(const XMLElement& feedRoot) override;
    void emptyLists() override;

private:
    ElementList m_SEList;
    std::vector<XMLElement> m_filteredSEList;
};

} // namespace lodestar
