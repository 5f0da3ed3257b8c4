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

RXPromise<std::string> RGListViewController::showFeed(const Feed& feed, Turn turn, Source /*source*/)
{
    return makeRows<RGListViewController>(
        turn, [feed] { return feed.entries(); },
        [feed](RGListViewController& screen, std::vector<XMLElement> entries) {
            screen.m_entriesOf = feed.root();
            screen.m_entries = std::move(entries);
            screen.parseTimeStampFromXML(feed.root());
            screen.UIShowContent();
        });
}

void RGListViewController::filterContentForSearchText(const QString& /*searchText*/, const QString& /*scope*/) {}

const std::vector<XMLElement>& RGListViewController::entries() const
{
    const Feed shown = feed();
    if (shown.root() != m_entriesOf) {
        m_entriesOf = shown.root();
        m_entries = shown.entries();
    }
    return m_entries;
}

int RGListViewController::numberOfRowsInSection(TableKind /*tableView*/, int /*section*/) const
{
    return static_cast<int>(entries().size());
}

std::vector<XMLElement> RGListViewController::elementsOfTable(TableKind /*tableView*/) const
{
    std::vector<XMLElement> groups;
    for (const XMLElement& entry : entries()) {
        if (XMLElement group = contentOf(entry, ResourceGroup::type)) {
            groups.push_back(std::move(group));
        }
    }
    return groups;
}

XMLElement RGListViewController::elementOfRow(TableKind /*tableView*/, IndexPath indexPath) const
{
    return contentOf(elementAt(entries(), indexPath.row), ResourceGroup::type);
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
    const auto group = recordOfEntry<ResourceGroup>(elementAt(entries(), indexPath.row));
    std::vector<ResourceGroup::Member> members = group.members();

    RGListCell cell;
    cell.groupNameLabel.text = textOf(group.name());
    cell.setGroupColor(group.color().value_or(""));
    cell.setResourceCount(static_cast<int>(members.size()));
    cell.updating = true;
    auto step = [this, cell, members = std::move(members), counters = RGStateCounts(),
                 next = std::size_t(0)]() mutable -> std::optional<QVariant> {
        if (next < members.size()) {
            const auto& [link, kind] = members[next++];
            processStates({link}, counters, kind);
        }
        if (next < members.size()) {
            return std::nullopt;
        }
        cell.setStateCounts(counters);
        cell.updating = false;
        return QVariant::fromValue(cell);
    };
    return {QVariant::fromValue(cell), std::move(step)};
}

void RGListViewController::processStates(const std::vector<XMLElement>& links, RGStateCounts& counters,
                                         LinkKind kind) const
{
    // The states are fetched one after another on the thread that configures the row, and are not cached, so that they
    // are current.
    for (const XMLElement& link : links) {
        counters.add(fetchMemberState({link, kind}, corvel()).value_or(""));
    }
}

} // namespace lodestar
