// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagedSystems/MSListViewController.h"

#include "Inventory/ManagedSystem.h"
#include "Views/Common/Scenes.h"
#include "Views/ManagedSystems/MSListCell.h"

#include <QCoreApplication>

#include <utility>

namespace lodestar
{
namespace
{

constexpr FeedListTraits traits = {
    .fileName = "Shared/Views/ManagedSystems/MSListViewController",
    .instantiationLine = 40,
    .type = ObjectType::ManagedSystem,
    .title = QT_TRANSLATE_NOOP("FeedListViewController", "Managed Systems"),
    .newDataFetch = {"fetchNewRESTData", 165},
    .noDataImage = "no_data_systems",
    .noDataText =
        QT_TRANSLATE_NOOP("FeedListViewController", "Managed systems could not be loaded. Refresh to try again."),
    .emptyText = QT_TRANSLATE_NOOP("FeedListViewController", "This console manages no systems."),
};

constexpr int cancelItem = 3;
constexpr int menuButton = 0;

std::string nameOf(const XMLElement& system)
{
    return ManagedSystem(system).name().value_or("");
}

} // namespace

MSListViewController::MSListViewController() : FlatListViewController(traits, nameOf) {}

void MSListViewController::adopt(ElementList rows, const Feed& feed)
{
    createMSList(std::move(rows));
    parseTimeStampFromXML(feed.root());
    UIShowContent();
}

void MSListViewController::createMSList(ElementList systems)
{
    log().write(197, "createMSList", "MSListViewController: Creating Managed System List");
    append(std::move(systems));
    tableView()->reloadData();
}

QVariant MSListViewController::cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    MSListCell cell(ManagedSystem(elementAtRow(tableView, indexPath.row)), matchFor(tableView));
    cell.rightButtons = {{tr("System menu"), Role::Button::Standard, QStringLiteral("more")}};
    return QVariant::fromValue(cell);
}

void MSListViewController::didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    m_actionSheet.present(tr("Managed System"), {},
                          {{tr("System Information"), false, QStringLiteral("info")},
                           {tr("Performance Monitoring"), false, QStringLiteral("performance")},
                           {tr("Logical Partitions"), false, QStringLiteral("logical_partitions")},
                           {tr("Cancel")}},
                          cancelItem, [this, tableView, indexPath](int index) {
                              // The element is read again, because the list may have been fetched anew while the sheet
                              // was up.
                              openItem(index, ManagedSystem(elementAtRow(tableView, indexPath.row)));
                          });
    table(tableView).deselectRow(indexPath);
}

void MSListViewController::openItem(int index, const ManagedSystem& system)
{
    if (!system) {
        return;
    }
    switch (index) {
    case 0:
        openScene(*this, Scenes::managedSystemInfo, system.element());
        break;
    case 1:
        openScene(*this, Scenes::pcmDataView,
                  {.corvel = corvel(), .sysName = system.name(), .systemID = system.identifier()});
        break;
    case 2:
        openScene(*this, Scenes::logicalPartitionsView, {.corvel = corvel(), .partitionName = system.name()});
        break;
    default:
        break;
    }
}

bool MSListViewController::swipeTableCell(bool inSearchResults, int row, int tappedButtonAtIndex)
{
    const XMLElement system = elementAtRow(inSearchResults ? TableKind::SearchResults : TableKind::Main, row);
    if (tappedButtonAtIndex == menuButton && system) {
        openScene(*this, Scenes::managedSystemMenu, {.corvel = corvel(), .system = system});
    }
    return true;
}

} // namespace lodestar
