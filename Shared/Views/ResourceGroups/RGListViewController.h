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

/// The resource groups of a console, each with its colour tag, how many resources it has and their states. It has no
/// search, and its rows lead nowhere.
class RGListViewController : public lodestar::FeedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    /// What a group's links lead to.
    using LinkKind = ResourceGroup::MemberKind;

    RGListViewController();

    /// A place for resources that rows have looked up; emptied by every pull. Nothing is kept in it: a state on screen
    /// is never older than the last time that its row was configured.
    std::map<std::string, std::string>& resources() { return m_resources; }

    /// Nothing: the list has no search.
    void filterContentForSearchText(const QString& searchText, const QString& scope) override;

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    /// Blocks for as long as the group's resources take to tell their states, one after another.
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// What is known without asking, and one step a resource.
    CellInSteps cellInStepsForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Asks each link for its state and counts it. Blocks.
    void processStates(const std::vector<XMLElement>& links, RGStateCounts& counters, LinkKind kind) const;

protected:
    RXPromise<std::string> showFeed(const XMLElement& feedRoot, Turn turn) override;
    void emptyLists() override { m_resources.clear(); }

private:
    const std::vector<XMLElement>& entries() const;

    std::map<std::string, std::string> m_resources;
    /// The stored feed's entries, and the feed they are of: a feed of many is walked once, not once a row.
    mutable XMLElement m_entriesOf;
    mutable std::vector<XMLElement> m_entries;
};

} // namespace lodestar
