// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/GroupedListViewController.h"

#include "Fleet/Registry.h"
#include "Inventory/Partition.h"
#include "Platform/Queues/MainSteps.h"

#include <memory>
#include <utility>

namespace lodestar
{
namespace
{

constexpr auto seperate = "seperatePartitionsBySystemFromXML:";

std::string nameOf(const XMLElement& partition)
{
    return Partition(partition).name().value_or("");
}

} // namespace

GroupedListViewController::GroupedListViewController(const GroupedListTraits& traits)
    : FeedListViewController(traits.list), m_grouping(traits), m_partitions(nameOf), m_filteredPartitions(nameOf)
{
}

void GroupedListViewController::emptyLists()
{
    m_partitions.clear();
    m_filteredPartitions.clear();
}

/// A feed, and the systems of those entries whose systems have been looked up.
struct GroupedListViewController::LookUps {
    Feed feed;
    Turn turn;
    std::vector<XMLElement> entries;
    std::vector<std::optional<std::string>> systems{};
};

RXPromise<std::string> GroupedListViewController::showFeed(const Feed& feed, Turn turn, Source source)
{
    parseTimeStampFromXML(feed.root());
    return seperatePartitionsBySystemFromXML(feed, turn, source);
}

RXPromise<std::string> GroupedListViewController::seperatePartitionsBySystemFromXML(const Feed& feed, Turn turn,
                                                                                    Source source)
{
    log().write(m_grouping.seperatingLine, seperate, std::string(log().className()) + ": Seperating partitions");
    const auto lookUps = std::make_shared<LookUps>(LookUps{feed, turn, feed.entries()});
    RXPromise<std::string> shown;
    if (source == Source::Record) {
        while (lookUpNext(*lookUps)) {
        }
        return group(lookUps, shown);
    }
    doInStepsOnMain([screen = self<GroupedListViewController>(), lookUps, shown] {
        if (screen->lookUpNext(*lookUps)) {
            return NextStep::AtOnce;
        }
        screen->group(lookUps, shown);
        return NextStep::None;
    });
    return shown;
}

bool GroupedListViewController::lookUpNext(LookUps& lookUps) const
{
    if (lookUps.systems.size() == lookUps.entries.size() || !isLast(lookUps.turn) || isClosed()) {
        return false;
    }
    const std::string className(log().className());
    log().write(m_grouping.partitionLine, seperate, className + ": Fetching partition");
    const XMLElement partition = contentOf(lookUps.entries[lookUps.systems.size()], type());
    log().write(m_grouping.linkLine, seperate, className + ": Fetching stored link");
    // An entry of another type is no partition and has no link to a system.
    lookUps.systems.push_back(partition ? systemOf(partition) : std::nullopt);
    return true;
}

RXPromise<std::string> GroupedListViewController::group(const std::shared_ptr<const LookUps>& lookUps,
                                                        const RXPromise<std::string>& shown)
{
    return makeRows<GroupedListViewController>(
        lookUps->turn,
        [lookUps, type = type()] {
            GroupedFeed rows = groupedBySystem(lookUps->feed, type, lookUps->systems, nameOf);
            rows.prepareSearch();
            return rows;
        },
        [](GroupedListViewController& screen, GroupedFeed rows) {
            screen.m_partitions.append(std::move(rows));
            screen.UIShowContent();
        },
        shown);
}

std::optional<std::string> GroupedListViewController::systemOf(const XMLElement& partition) const
{
    std::optional<std::string> name = fetchLinkedText(Partition(partition).systemNameLink(), corvel(), type());
    if (m_grouping.nameless == Nameless::LeftOut) {
        return name;
    }
    // Without a name, the section's header would be empty.
    return name.value_or("").empty() ? tr("Unknown system").toStdString() : std::move(name);
}

void GroupedListViewController::filterContentForSearchText(const QString& searchText, const QString& /*scope*/)
{
    m_filteredPartitions = m_partitions.containing(searchText.toStdString());
}

const std::vector<XMLElement>& GroupedListViewController::groupAt(TableKind tableView, int section) const
{
    return groupsOf(tableView).elementsAt(static_cast<std::size_t>(section));
}

const std::vector<XMLElement>& GroupedListViewController::groupNamed(TableKind tableView,
                                                                     const std::string& system) const
{
    const GroupedFeed& groups = groupsOf(tableView);
    return groups.elementsAt(groups.groupOf(system).value_or(groups.groupCount()));
}

int GroupedListViewController::numberOfSections(TableKind tableView) const
{
    return static_cast<int>(groupsOf(tableView).groupCount());
}

int GroupedListViewController::numberOfRowsInSection(TableKind tableView, int section) const
{
    return static_cast<int>(groupAt(tableView, section).size());
}

std::optional<QString> GroupedListViewController::titleForHeaderInSection(TableKind /*tableView*/, int section) const
{
    // Titles come from the unfiltered groups, for search results too. The filter does not change titles; that is meant.
    return m_partitions.groupCount() == 0
               ? QStringLiteral("Demo Corvel")
               : QString::fromStdString(m_partitions.keyAt(static_cast<std::size_t>(section)));
}

XMLElement GroupedListViewController::partitionAt(TableKind tableView, IndexPath indexPath) const
{
    return elementAt(groupAt(tableView, indexPath.section), indexPath.row);
}

std::vector<XMLElement> GroupedListViewController::elementsOfTable(TableKind tableView) const
{
    std::vector<XMLElement> rows;
    for (int section = 0; section < numberOfSections(tableView); ++section) {
        for (int row = 0; row < numberOfRowsInSection(tableView, section); ++row) {
            rows.push_back(partitionAt(tableView, {section, row}));
        }
    }
    std::erase_if(rows, [](const XMLElement& element) { return !element; });
    return rows;
}

QVariant GroupedListViewController::cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    const Partition partition(partitionAt(tableView, indexPath));
    PartitionCell cell(partition, matchFor(tableView));
    completeCell(cell, partition);
    return QVariant::fromValue(cell);
}

void GroupedListViewController::didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    const XMLElement partition = partitionAt(tableView, indexPath);
    if (partition) {
        openScene(*this, m_grouping.detailScene, partition);
    }
    table(tableView).deselectRow(indexPath);
}

} // namespace lodestar
