// SPDX-License-Identifier: Apache-2.0
#include "Views/VIOS/VIOSViewController.h"

#include "Inventory/Partition.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

constexpr GroupedListTraits traits = {
    .list =
        {
            .fileName = "Shared/Views/VIOS/VIOSViewController",
            .instantiationLine = 37,
            .type = ObjectType::VirtualIOServer,
            .title = QT_TRANSLATE_NOOP("FeedListViewController", "Virtual IO Servers"),
            .newDataFetch = {"fetchNewRESTData", 158},
            .noDataImage = "no_data_vios",
            .noDataText = QT_TRANSLATE_NOOP("FeedListViewController",
                                            "Virtual servers could not be loaded. Refresh to try again."),
            .noDataHeadline = QT_TRANSLATE_NOOP("FeedListViewController", "Nothing in sight"),
            .emptyText = QT_TRANSLATE_NOOP("FeedListViewController", "There are no virtual servers here."),
        },
    .seperatingLine = 189,
    .partitionLine = 192,
    .linkLine = 195,
    .nameless = Nameless::LeftOut,
    .detailScene = Scenes::viosDetail,
};

SwipeButton checkButton(Role::Button role)
{
    return {QString(), role, QStringLiteral("check"), VIOSViewController::tr("Check")};
}

} // namespace

VIOSViewController::VIOSViewController() : GroupedListViewController(traits) {}

void VIOSViewController::completeCell(PartitionCell& cell, const Partition& partition) const
{
    cell.leftExpansion = 0;
    if (partition.health() == Health::Idle) {
        cell.leftButtons = {checkButton(Role::Button::Positive)};
    } else {
        cell.leftButtons = {checkButton(Role::Button::Standard),
                            {QString(), Role::Button::Favourite, QStringLiteral("fav"), tr("Favourite")}};
    }
}

} // namespace lodestar
