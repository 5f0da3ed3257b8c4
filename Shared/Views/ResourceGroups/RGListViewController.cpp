// SPDX-License-Identifier: Apache-2.0
#include "Views/ResourceGroups/RGListViewController.h"

#include "Fleet/Registry.h"
#include "Inventory/ElementList.h"
#include "Views/Common/CellText.h"

#include <QCoreApplication>

#include <cstddef>
#include <optional>
#include <utility>

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

RGListViewController::RGListViewController() : FeedListViewController(traits)
{
    tableView()->setMakesCellsInSteps(true);
}

RXPromise<std::string> RGListViewController::showFeed(const XMLElement& feedRoot, Turn turn)
{
    parseTimeStampFromXML(feedRoot);
    showContentOf(turn);
    return done();
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

QVariant RGListViewController::cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    const CellInSteps making = cellInStepsForRowAtIndexPath(tableView, indexPath);
    std::optional<QVariant> whole;
    while (!whole) {
        whole = making.step();
    }
    return *whole;
}

CellInSteps RGListViewController::cellInStepsForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const XMLElement group = elementAt(entries(), indexPath.row).path({"content", ObjectType::Group});
    std::vector<std::pair<XMLElement, LinkKind>> links;
    for (const auto& [list, kind] : {std::pair("AssociatedLogicalPartitions", LinkKind::Partition),
                                     std::pair("AssociatedVirtualIOServers", LinkKind::Partition),
                                     std::pair("AssociatedManagedSystems", LinkKind::ManagedSystem)}) {
        for (XMLElement& link : group.child(list).children("link")) {
            links.emplace_back(std::move(link), kind);
        }
    }

    RGListCell cell;
    cell.setGroupName(textOf(group.child("GroupName")));
    cell.setGroupColor(group.child("GroupColor").text().value_or(""));
    cell.setResourceCount(static_cast<int>(links.size()));
    cell.setUpdating(true);
    auto step = [this, cell, links = std::move(links), counters = RGStateCounts(),
                 next = std::size_t(0)]() mutable -> std::optional<QVariant> {
        if (next < links.size()) {
            const auto& [link, kind] = links[next++];
            processStates({link}, counters, kind);
        }
        if (next < links.size()) {
            return std::nullopt;
        }
        cell.setStateCounts(counters);
        cell.setUpdating(false);
        return QVariant::fromValue(cell);
    };
    return {QVariant::fromValue(cell), std::move(step)};
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
