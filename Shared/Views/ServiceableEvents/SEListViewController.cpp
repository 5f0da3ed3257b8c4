// SPDX-License-Identifier: Apache-2.0
#include "Views/ServiceableEvents/SEListViewController.h"

#include "Inventory/ServiceableEvent.h"
#include "Views/Common/Scenes.h"
#include "Views/ServiceableEvents/SEListCell.h"

#include <QCoreApplication>

#include <utility>

namespace lodestar
{
namespace
{

// Three functions fetch here; each failure is logged with the function's own name and line.
constexpr FeedListTraits traits = {
    .fileName = "Shared/Views/ServiceableEvents/SEListViewController",
    .instantiationLine = 32,
    .type = ObjectType::ServiceableEvent,
    .title = QT_TRANSLATE_NOOP("FeedListViewController", "Serviceable Events"),
    .newDataFetch = {"fetchServiceableEvents", 152},
    .pullFetch = {"refreshTable:", 216},
    .buttonFetch = {"refreshFromButton", 240},
    .pullEnds = PullEnds::OnSettlement,
    .separators = {15, 17},
    .resultSeparators = {15, 17},
    .rowHeight = 60,
    .noDataImage = "no_data_events",
    .noDataText =
        QT_TRANSLATE_NOOP("FeedListViewController", "Serviceable events could not be loaded. Refresh to try again."),
    .emptyText = QT_TRANSLATE_NOOP("FeedListViewController", "This console has no serviceable events."),
};

std::string titleOf(const XMLElement& event)
{
    return ServiceableEvent(event).title();
}

} // namespace

SEListViewController::SEListViewController() : FlatListViewController(traits, titleOf) {}

void SEListViewController::adopt(ElementList rows, const Feed& feed)
{
    createSEList(std::move(rows));
    parseTimeStampFromXML(feed.root());
}

void SEListViewController::createSEList(ElementList events)
{
    log().write(185, "createSEList", "SEListViewController: Creating SE list");
    append(std::move(events));
    UIShowContent();
}

QVariant SEListViewController::cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    // The feed has no root when it is "NA" or absent, because the console was reset while its events were shown.
    if (!feed().root()) {
        setHeaderTitle(QCoreApplication::translate("FeedListViewController", traits.title), tr("N/A"));
        return QVariant::fromValue(SEListCell());
    }
    return QVariant::fromValue(
        SEListCell(ServiceableEvent(elementAtRow(tableView, indexPath.row)), matchFor(tableView)));
}

void SEListViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    // The row's index is used in the whole feed, and the main table's row is deselected, even when a search result was
    // tapped. Both are meant.
    const XMLElement event = contentOf(elementAt(feed().entries(), indexPath.row), ObjectType::ServiceableEvent);
    if (event) {
        openScene(*this, Scenes::serviceableEventsDetail, event);
    }
    tableView()->deselectRow(indexPath);
}

} // namespace lodestar
