// SPDX-License-Identifier: Apache-2.0
#include "Views/ResourceGroups/RGListViewController.h"

#include "Views/Common/CellText.h"
#include "Views/Common/ElementList.h"
#include "Views/Common/Registry.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

constexpr FeedListTraits traits = {
    .fileName = "Shared/Views/ResourceGroups/RGListViewController",
    .instantiationLine = __LINE__,
    .type = ObjectType::Group,
    .title = QT_TRANSLATE_NOOP("FeedListViewController", "Resource Groups"),
    .newDataFetch = {"fetchNewRESTData", __LINE__},
    .rowHeight = 75,
    .searchable = false,
    .noDataImage = "no_data_groups",
    .noDataText =
        QT_TRANSLATE_NOOP("FeedListViewController", "Resource groups could not be loaded. Refresh to try again."),
    .emptyText = QT_TRANSLATE_NOOP("FeedListViewController", "This console has no resource groups."),
};

} // namespace

RGListViewController::RGListViewController() : FeedListViewController(traits) {}

void RGListViewController::showFeed(const XMLElement& feedRoot)
{
    parseTimeStampFromXML(feedRoot);
    UIShowContent();
}

void RGListViewController::filterContentForSearchText(const QString& /*searchText*/, const QString& /*scope*/) {}

const std::vector<XMLElement>& RGListViewController::entries() const
{
    const XMLElement root = feed().root();
    if (root != m_entriesOf) {
        m_entriesOf = root;
        m_entries = root.children("entry");
    }
    return m_entries;
}

int RGListViewController::numberOfRowsInSection(TableKind /*tableView*/, int /*section*/) const
{
    return static_cast<int>(entries().size());
}

QVariant RGListViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const XMLElement group = elementAt(entries(), indexPath.row).path({"content", ObjectType::Group});
    const auto links = [&group](std::string_view list) { return group.child(list).children("link"); };
    const std::vector<XMLElement> partitions = links("AssociatedLogicalPartitions");
    const std::vector<XMLElement> servers = links("AssociatedVirtualIOServers");
    const std::vector<XMLElement> systems = links("AssociatedManagedSystems");

    RGListCell cell;
    cell.setGroupName(textOf(group.child("GroupName")));
    cell.setGroupColor(group.child("GroupColor").text().value_or(""));
    RGStateCounts counters;
    processStates(partitions, counters, LinkKind::Partition);
    processStates(servers, counters, LinkKind::Partition);
    processStates(systems, counters, LinkKind::ManagedSystem);
    cell.setStateCounts(counters);
    cell.setResourceCount(static_cast<int>(partitions.size() + servers.size() + systems.size()));
    return QVariant::fromValue(cell);
}

void RGListViewController::processStates(const std::vector<XMLElement>& links, RGStateCounts& counters,
                                         LinkKind kind) const
{
    const char* const property = kind == LinkKind::ManagedSystem ? "/quick/State" : "/quick/PartitionState";
    // One request after another, nothing kept, on the thread that configures the row: states are as they are now.
    for (const XMLElement& link : links) {
        const auto href = link.attribute("href");
        const auto state = href ? fetchLinkedText(*href + property, corvel()) : std::nullopt;
        counters.add(state.value_or(""));
    }
}

} // namespace lodestar
