// SPDX-License-Identifier: Apache-2.0
#include "Application/MainStoryboard.h"

#include "Application/IntroView.h"
#include "Application/PasswordCreationViewController.h"
#include "Application/SettingsViewController.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/Storyboard.h"
#include "Kit/Core/TabBarController.h"
#include "Views/About/OpenSourceViewController.h"
#include "Views/About/OrnisLicenseViewController.h"
#include "Views/About/VersionViewController.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/Corvels/DeltaCorvelViewController.h"
#include "Views/Dashboard/CorvelOverviewTableViewController.h"
#include "Views/Dashboard/DashboardTableViewController.h"
#include "Views/Dashboard/MSOverViewController.h"
#include "Views/LogicalPartitions/LPDetailViewController.h"
#include "Views/LogicalPartitions/LPListViewController.h"
#include "Views/ManagedSystems/MSDetailViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"
#include "Views/ManagementConsole/MCViewController.h"
#include "Views/ResourceGroups/RGListViewController.h"
#include "Views/ServiceableEvents/SEDetailViewController.h"
#include "Views/ServiceableEvents/SEListViewController.h"
#include "Views/VIOS/VIOSDetailViewController.h"
#include "Views/VIOS/VIOSViewController.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

QUrl viewsScene(const char* file)
{
    return QUrl(QStringLiteral("qrc:/Lodestar/Views/") + QLatin1String(file));
}

QUrl applicationScene(const char* file)
{
    return QUrl(QStringLiteral("qrc:/Lodestar/Application/") + QLatin1String(file));
}

std::shared_ptr<ViewController> inNavigation(const char* identifier)
{
    return makeController<NavigationController>(Storyboard::main().instantiateViewController(identifier));
}

/// The main interface: a tab bar with the console list and the dashboard, each in a navigation stack of its own.
std::shared_ptr<ViewController> makeMainInterface()
{
    return makeController<TabBarController>(std::vector<TabBarItem>{
        {QCoreApplication::translate("MainStoryboard", "Corvels"), QStringLiteral("tab_consoles"),
         inNavigation("corvelListView")},
        {QCoreApplication::translate("MainStoryboard", "Dashboard"), QStringLiteral("tab_dashboard"),
         inNavigation("dashboardView")},
    });
}

template <typename Controller>
Storyboard::Factory factory()
{
    return [] { return makeController<Controller>(); };
}

} // namespace

void registerMainStoryboard(LoginViewController::RootSwitch showRoot)
{
    CorvelListViewController::setIntroPresenter(&IntroView::showIntroViewInView);
    Storyboard& storyboard = Storyboard::main();
    storyboard.registerScene(
        "loginViewController",
        [showRoot = std::move(showRoot)] { return makeController<LoginViewController>(showRoot); },
        applicationScene("LoginScene.qml"));
    storyboard.registerScene("passwordCreation", factory<PasswordCreationViewController>(),
                             applicationScene("PasswordCreationScene.qml"));
    storyboard.registerScene("settingsViewController", factory<SettingsViewController>(),
                             applicationScene("SettingsScene.qml"));
    storyboard.registerScene("mainView", &makeMainInterface, {});
    storyboard.registerScene("corvelListView", factory<CorvelListViewController>(), viewsScene("CorvelListScene.qml"));
    storyboard.registerScene("deltaCorvel", factory<DeltaCorvelViewController>(), viewsScene("DeltaCorvelScene.qml"));
    storyboard.registerScene("dashboardView", factory<DashboardTableViewController>(),
                             viewsScene("DashboardScene.qml"));
    storyboard.registerScene("corvelTasksViewController", factory<CorvelOverviewTableViewController>(),
                             viewsScene("MenuScene.qml"));
    storyboard.registerScene("managedSystemsView", factory<MSListViewController>(), viewsScene("MSListScene.qml"));
    storyboard.registerScene("managedSystemInfo", factory<MSDetailViewController>(), viewsScene("DetailScene.qml"));
    storyboard.registerScene("managedSystemMenu", factory<MSOverViewController>(), viewsScene("MSOverScene.qml"));
    storyboard.registerScene("pcmDataView", factory<PCMViewController>(), viewsScene("PCMScene.qml"));
    storyboard.registerScene("managementConsoleView", factory<MCViewController>(), viewsScene("MCScene.qml"));
    storyboard.registerScene("logicalPartitionsView", factory<LPListViewController>(),
                             viewsScene("GroupedListScene.qml"));
    storyboard.registerScene("logicalPartitionsDetail", factory<LPDetailViewController>(),
                             viewsScene("DetailScene.qml"));
    storyboard.registerScene("viosView", factory<VIOSViewController>(), viewsScene("GroupedListScene.qml"));
    storyboard.registerScene("viosDetail", factory<VIOSDetailViewController>(), viewsScene("DetailScene.qml"));
    storyboard.registerScene("resourceGroupsView", factory<RGListViewController>(), viewsScene("RGListScene.qml"));
    storyboard.registerScene("serviceableEventsView", factory<SEListViewController>(), viewsScene("SEListScene.qml"));
    storyboard.registerScene("serviceableEventsDetail", factory<SEDetailViewController>(),
                             viewsScene("DetailScene.qml"));
    storyboard.registerScene("versionViewController", factory<VersionViewController>(),
                             viewsScene("RichDocumentScene.qml"));
    storyboard.registerScene("openSourceViewController", factory<OpenSourceViewController>(),
                             viewsScene("OpenSourceScene.qml"));
    storyboard.registerScene("OrnisLicenseViewController", factory<OrnisLicenseViewController>(),
                             viewsScene("RichDocumentScene.qml"));
}

} // namespace lodestar
