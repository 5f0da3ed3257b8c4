// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/GroupedFeed.h"
#include "Views/Common/FeedListViewController.h"
#include "Views/Common/PartitionCell.h"
#include "Views/Common/Scenes.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// How an element is listed when its system's name cannot be looked up.
enum class Nameless {
    Grouped, ///< in a section "Unknown system"
    LeftOut  ///< not at all
};

/// The differences between the grouped lists, besides those of all feed lists.
struct GroupedListTraits {
    FeedListTraits list;
    /// Line numbers of the log lines of `seperatePartitionsBySystemFromXML`: one at its start, two for each entry.
    int seperatingLine;
    int partitionLine;
    int linkLine;
    Nameless nameless;
    Scene<XMLElement> detailScene;
};

/// A list of a console's partitions or servers with one section per managed system. Sections stand in the order in
/// which their systems first occur in the feed, rows in the order of the feed; nothing is sorted. Each element names
/// its system by a link only, so grouping asks the console once per element, one after the other; no answer is reused.
///
/// A subclass gives its traits and overrides `completeCell`; its scene is GroupedListScene.
class GroupedListViewController : public lodestar::FeedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    /// The traits must outlive the screen.
    explicit GroupedListViewController(const GroupedListTraits& traits);

    const GroupedFeed& partitions() const { return m_partitions; }
    /// The search results by system; systems without a match are left out.
    const GroupedFeed& filteredPartitions() const { return m_filteredPartitions; }

    void filterContentForSearchText(const QString& searchText, const QString& scope) override;

    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    std::vector<XMLElement> elementsOfTable(TableKind tableView) const override;
    XMLElement elementOfRow(TableKind tableView, IndexPath indexPath) const override
    {
        return partitionAt(tableView, indexPath);
    }
    RXPromise<std::string> showFeed(const Feed& feed, Turn turn, Source source) override;
    /// Appends the feed's elements to their systems and shows the content. Blocks its thread for one look-up per
    /// element: a background queue for the record's feed, the main thread after a fetch. Both are meant; on the main
    /// thread events are handled between look-ups. It ends early, and shows nothing, when the screen is closed or the
    /// list is fetched anew.
    RXPromise<std::string> seperatePartitionsBySystemFromXML(const Feed& feed, Turn turn, Source source);
    void emptyLists() override;
    /// Adds the parts of a row that only the subclass shows.
    virtual void completeCell(PartitionCell& cell, const Partition& partition) const = 0;
    /// The element that a row shows and opens; no element for a row that does not exist.
    virtual XMLElement partitionAt(TableKind tableView, IndexPath indexPath) const;

    /// A group by its index among the table's own groups; empty if the table has no such group.
    const std::vector<XMLElement>& groupAt(TableKind tableView, int section) const;
    /// A group by its system's name among the table's own groups; empty if the table has no such group.
    const std::vector<XMLElement>& groupNamed(TableKind tableView, const std::string& system) const;

private:
    struct LookUps;
    const GroupedFeed& groupsOf(TableKind tableView) const
    {
        return tableView == TableKind::SearchResults ? m_filteredPartitions : m_partitions;
    }
    /// Looks up the system of the next entry. False when no entry is left or the result is no longer wanted.
    bool lookUpNext(LookUps& lookUps) const;
    RXPromise<std::string> group(const std::shared_ptr<const LookUps>& lookUps, const RXPromise<std::string>& shown);
    std::optional<std::string> systemOf(const XMLElement& partition) const;

    const GroupedListTraits& m_grouping;
    GroupedFeed m_partitions;
    GroupedFeed m_filteredPartitions;
};

} // namespace lodestar
