// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/GroupedFeed.h"
#include "Views/Common/FeedListViewController.h"
#include "Views/Common/PartitionCell.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What becomes of an element whose system's name cannot be looked up.
enum class Nameless {
    Grouped, ///< listed under a system of its own name
    LeftOut  ///< listed nowhere
};

/// How one grouped list differs from the other, beside what all lists differ in.
struct GroupedListTraits {
    FeedListTraits list;
    /// Of the log lines of `seperatePartitionsBySystemFromXML`: at its start, and twice for each entry.
    int seperatingLine;
    int partitionLine;
    int linkLine;
    Nameless nameless;
    std::string_view detailScene;
};

/// A list of a console's partitions or servers in one section per managed system. Sections stand in the order in which
/// their systems first came, rows in the order of the feed; nothing is sorted. Each element names its system by a link
/// only, so that grouping asks the console once per element, one after the other; no answer is kept for the next.
///
/// A screen of this kind gives its traits and overrides `completeCell`; its scene is GroupedListScene.
class GroupedListViewController : public lodestar::FeedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    /// The traits outlive the screen.
    explicit GroupedListViewController(const GroupedListTraits& traits);

    const GroupedFeed& partitions() const { return m_partitions; }
    /// What the search found, a system without a match left out.
    const std::vector<ElementGroup>& filteredPartitions() const { return m_filteredPartitions; }

    /// Appends the feed's elements to their systems and shows the content. Blocks its thread for one look-up per
    /// element: a background queue for the stored feed, the main thread after a fetch. Both are meant; on the main
    /// thread events are handled between look-ups. It ends early, and shows nothing, when the screen is closed or the
    /// list is fetched anew.
    void seperatePartitionsBySystemFromXML(const XMLElement& feedRoot)
    {
        seperatePartitionsBySystemFromXML(feedRoot, turn());
    }
    void filterContentForSearchText(const QString& searchText, const QString& scope) override;

    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    RXPromise<std::string> showFeed(const XMLElement& feedRoot, Turn turn) override;
    void emptyLists() override;
    /// Adds to a row what only this screen shows.
    virtual void completeCell(PartitionCell& cell, const Partition& partition) const = 0;
    /// What stands in a row and is opened by it; no element for a row that is not there.
    virtual XMLElement partitionAt(TableKind tableView, IndexPath indexPath) const;

    /// A group by its place among the keys of the table's own groups; without elements if it is not there.
    const std::vector<XMLElement>& groupAt(TableKind tableView, int section) const;
    /// Likewise by its system's name.
    const std::vector<XMLElement>& groupNamed(TableKind tableView, const std::string& system) const;

private:
    struct Grouping;
    RXPromise<std::string> seperatePartitionsBySystemFromXML(const XMLElement& feedRoot, Turn turn);
    /// Looks one element's system up; false when there was none left or nobody wants the rest.
    bool groupNext(Grouping& grouping) const;
    void adopt(Grouping& grouping);
    std::optional<std::string> systemOf(const XMLElement& partition) const;

    const GroupedListTraits& m_grouping;
    GroupedFeed m_partitions;
    std::vector<ElementGroup> m_filteredPartitions;
};

} // namespace lodestar
