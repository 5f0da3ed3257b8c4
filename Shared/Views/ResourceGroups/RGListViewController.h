// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/ResourceGroup.h"
#include "Views/Common/FeedListViewController.h"
#include "Views/ResourceGroups/RGListCell.h"

#include <map>
#include <string>
#include <vector>

namespace lodestar
{

/// The resource groups of a console, each with its colour tag, its number of resources and their states. The list has
/// no search, and its rows lead nowhere.
class RGListViewController : public lodestar::FeedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    /// The kind of resource that a group's link leads to.
    using LinkKind = ResourceGroup::MemberKind;

    RGListViewController();

    /// A place for looked-up resources, emptied by every pull. Nothing is stored in it: a state on screen is always as
    /// old as the row's last configuration.
    std::map<std::string, std::string>& resources() { return m_resources; }

    /// Does nothing, because the list has no search.
    void filterContentForSearchText(const QString& searchText, const QString& scope) override;

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    /// Blocks until all resources of the group have told their states, one after another.
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// The cell as far as it is known without asking, and one step per resource.
    CellInSteps cellInStepsForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Asks each link for its state and counts the states. Blocks.
    void processStates(const std::vector<XMLElement>& links, RGStateCounts& counters, LinkKind kind) const;

protected:
    std::vector<XMLElement> elementsOfTable(TableKind tableView) const override;
    XMLElement elementOfRow(TableKind tableView, IndexPath indexPath) const override;
    RXPromise<std::string> showFeed(const Feed& feed, Turn turn, Source source) override;
    void emptyLists() override { m_resources.clear(); }

private:
    const std::vector<XMLElement>& entries() const;

    std::map<std::string, std::string> m_resources;
    /// The entries of the stored feed, and the feed that they come from, so that a long feed is walked once and not
    /// once per row.
    mutable XMLElement m_entriesOf;
    mutable std::vector<XMLElement> m_entries;
};

} // namespace lodestar
