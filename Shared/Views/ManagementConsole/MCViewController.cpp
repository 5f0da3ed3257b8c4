// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagementConsole/MCViewController.h"

#include "Fleet/Registry.h"
#include "Inventory/ConsoleInformation.h"
#include "Views/Common/FeedTimeStamp.h"
#include "Views/Common/ScreenLog.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr ScreenLog screenLog("Shared/Views/ManagementConsole/MCViewController");
constexpr auto populate = "populateTableViewFromXML:";

} // namespace

MCViewController::MCViewController()
{
    setSectionTitles({tr("Main Information"), tr("Model & Serial Information"), tr("Version Information")});
    tableView()->setHidden(true);
    m_contentLabel.setText(tr("Console information could not be loaded."));
    m_contentLabel.setHidden(true);
}

void MCViewController::viewDidLoad()
{
    screenLog.write(26, "viewDidLoad", "MCViewController instantiation");
    m_header.setCustomNavigationBar();
    m_header.setHeaderTitle(tr("Management Console"), tr("updating..."));
    fetchSystemInformation();
}

void MCViewController::fetchSystemInformation()
{
    if (corvel() && !corvel()->completedFetch) {
        fetchAfresh();
        return;
    }
    const Feed stored = corvel() ? feedOfType(*corvel(), ObjectType::ManagementConsole) : Feed::notAvailable();
    if (stored.isNA()) {
        m_header.setHeaderTitle(tr("Console Data"), tr("N/A"));
        offerRefresh();
        return;
    }
    populateTableViewFromXML(stored.root());
}

void MCViewController::offerRefresh()
{
    m_rightBarButton.setItem(BarButtonOutlet::SystemItem::Refresh, [this] { refreshFromButton(); });
}

void MCViewController::refreshFromButton()
{
    // Only one fetch runs at a time, so the button goes; if the fetch fails, the button is offered again.
    m_rightBarButton.setItem(BarButtonOutlet::SystemItem::None, {});
    m_contentLabel.setHidden(true);
    m_header.setHeaderTitle(tr("Management Console"), tr("updating..."));
    fetchAfresh();
}

void MCViewController::fetchAfresh()
{
    m_fetchingActivityIndicator.startAnimating();
    const auto screen = self<MCViewController>();
    fetchFeedWithStoredKey(corvel(), ObjectType::ManagementConsole)
        .thenOnMain(
            [screen](const XMLElement& feedRoot) {
                setFeedOfType(*screen->corvel(), ObjectType::ManagementConsole, Feed(feedRoot));
                screen->populateTableViewFromXML(feedRoot);
                return std::string("OK");
            },
            [screen](const Error& error) {
                screenLog.writeError(121, "fetchSystemInformation", error);
                screen->m_fetchingActivityIndicator.stopAnimating();
                // The subtitle "updating..." has to go.
                screen->m_header.setHeaderTitle(tr("Management Console"), QString());
                screen->m_contentLabel.setHidden(false);
                screen->offerRefresh();
                return error;
            });
}

void MCViewController::parseTimeStampFromXML(const XMLElement& feedRoot)
{
    m_header.setHeaderTitle(tr("Management Console"), feedTimeStamp(Feed(feedRoot)));
}

void MCViewController::populateTableViewFromXML(const XMLElement& feedRoot)
{
    parseTimeStampFromXML(feedRoot);
    screenLog.write(135, populate, "MCViewController: Fetching data");
    const ConsoleInformation console = ConsoleInformation::of(Feed(feedRoot));

    screenLog.write(138, populate, "MCViewController: Fetching Main items");
    DetailSection main{row(tr("Console Name"), console.name())};

    screenLog.write(144, populate, "MCViewController: Fetching MTSM");
    DetailSection serial = modelAndSerial(console.identity());

    // The log line says processors although the version follows.
    screenLog.write(156, populate, "MCViewController: Fetching processor information");
    DetailSection version{row(tr("Version"), QString::fromStdString(console.version())),
                          row(tr("Build Level"), console.buildLevel())};

    m_fetchingActivityIndicator.stopAnimating();
    tableView()->setHidden(false);
    setTableData({std::move(main), std::move(serial), std::move(version)});
}

} // namespace lodestar
