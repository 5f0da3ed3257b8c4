// SPDX-License-Identifier: Apache-2.0
#include "Application/MainStoryboard.h"

#include "Application/IntroView.h"
#include "Application/PasswordCreationViewController.h"
#include "Application/SettingsViewController.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "Views/About/OpenSourceViewController.h"
#include "Views/About/OrnisLicenseViewController.h"
#include "Views/About/VersionViewController.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/Attention/WatchConsolesViewController.h"
#include "Views/Attention/WatchViewController.h"
#include "Views/Common/Scenes.h"
#include "Views/Connection/ConnectionViewController.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/Corvels/CorvelMenu.h"
#include "Views/Corvels/DeltaCorvelViewController.h"
#include "Views/Dashboard/CorvelOverviewTableViewController.h"
#include "Views/Dashboard/DashboardTableViewController.h"
#include "Views/Dashboard/MSOverViewController.h"
#include "Views/Find/FindViewController.h"
#include "Views/FleetSheet/FleetChooseViewController.h"
#include "Views/FleetSheet/FleetSheetViewController.h"
#include "Views/FleetSheet/FleetUnusableViewController.h"
#include "Views/FleetSheet/FleetVerifyViewController.h"
#include "Views/LogicalPartitions/LPDetailViewController.h"
#include "Views/LogicalPartitions/LPListViewController.h"
#include "Views/ManagedSystems/MSDetailViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"
#include "Views/ManagedSystems/PCM/LargeChartViewController.h"
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

std::shared_ptr<ViewController> inNavigation(Scene<> scene)
{
    return makeController<NavigationController>(Storyboard::main().instantiateViewController(scene));
}

/// The main interface: a tab bar with the console list, the dashboard and what needs attention, each in a navigation
/// stack of its own.
std::shared_ptr<ViewController> makeMainInterface()
{
    const auto tabs = makeController<TabBarController>(std::vector<TabBarItem>{
        {QCoreApplication::translate("MainStoryboard", "Corvels"), QStringLiteral("tab_consoles"),
         inNavigation(Scenes::corvelListView)},
        {QCoreApplication::translate("MainStoryboard", "Dashboard"), QStringLiteral("tab_dashboard"),
         inNavigation(Scenes::dashboardView)},
        {QCoreApplication::translate("MainStoryboard", "Attention"), QStringLiteral("tab_attention"),
         inNavigation(Scenes::attentionView)},
    });
    countAttention(*tabs, tabs->count() - 1);
    return tabs;
}

void give(const ViewController& /*screen*/, NoInput /*input*/) {}

void give(CorvelReceiving& screen, CorvelRef corvel)
{
    screen.setCorvel(std::move(corvel));
}

void give(RootXMLReceiving& screen, XMLElement rootXML)
{
    screen.setRootXML(std::move(rootXML));
}

void give(DeltaCorvelViewController& screen, EditorInput input)
{
    screen.setCorvel(std::move(input.corvel));
    screen.setParentList(std::move(input.parentList));
}

void give(LPListViewController& screen, PartitionsInput input)
{
    screen.setCorvel(std::move(input.corvel));
    screen.setPartitionName(std::move(input.partitionName));
}

void give(MSOverViewController& screen, SystemMenuInput input)
{
    screen.setCorvel(std::move(input.corvel));
    screen.setSystem(std::move(input.system));
}

void give(FindViewController& screen, const FindInput& input)
{
    screen.look(input.text);
}

void give(PCMViewController& screen, PerformanceInput input)
{
    screen.setCorvel(std::move(input.corvel));
    screen.setSysName(std::move(input.sysName));
    screen.setSystemID(std::move(input.systemID));
}

void give(LargeChartViewController& screen, LargeChartInput input)
{
    screen.setSysName(std::move(input.sysName));
    screen.setMetrics(std::move(input.metrics));
    screen.setSegment(input.segment);
}

void give(FleetChooseViewController& screen, FleetFileInput input)
{
    screen.setFile(std::move(input));
}

void give(FleetUnusableViewController& screen, std::shared_ptr<const FleetSheet> input)
{
    screen.setSheet(std::move(input));
}

void give(FleetVerifyViewController& screen, std::shared_ptr<FleetImport> input)
{
    screen.setImport(std::move(input));
}

template <typename Controller, typename Input>
void add(Scene<Input> scene, QUrl file)
{
    const auto factory = [](Input input) {
        auto screen = makeController<Controller>();
        give(*screen, std::move(input));
        return screen;
    };
    Storyboard::main().registerScene(scene, factory, std::move(file));
}

} // namespace

void registerMainStoryboard(LoginViewController::RootSwitch showRoot)
{
    CorvelListViewController::setIntroPresenter(&IntroView::showIntroViewInView);
    setAttentionPresenter(&showAttentionOf);
    const auto makeLogin = [showRoot = std::move(showRoot)](NoInput) {
        return makeController<LoginViewController>(showRoot);
    };
    const auto makeMainView = [](NoInput) { return makeMainInterface(); };
    Storyboard::main().registerScene(Scenes::loginViewController, makeLogin, applicationScene("LoginScene.qml"));
    Storyboard::main().registerScene(Scenes::mainView, makeMainView, {});
    add<PasswordCreationViewController>(Scenes::passwordCreation, applicationScene("PasswordCreationScene.qml"));
    add<SettingsViewController>(Scenes::settingsViewController, applicationScene("SettingsScene.qml"));
    add<CorvelListViewController>(Scenes::corvelListView, viewsScene("CorvelListScene.qml"));
    add<DeltaCorvelViewController>(Scenes::deltaCorvel, viewsScene("DeltaCorvelScene.qml"));
    add<ConnectionViewController>(Scenes::connectionView, viewsScene("ConnectionScene.qml"));
    add<DashboardTableViewController>(Scenes::dashboardView, viewsScene("DashboardScene.qml"));
    add<CorvelOverviewTableViewController>(Scenes::corvelTasksViewController, viewsScene("MenuScene.qml"));
    add<MSListViewController>(Scenes::managedSystemsView, viewsScene("MSListScene.qml"));
    add<MSDetailViewController>(Scenes::managedSystemInfo, viewsScene("DetailScene.qml"));
    add<MSOverViewController>(Scenes::managedSystemMenu, viewsScene("MSOverScene.qml"));
    add<PCMViewController>(Scenes::pcmDataView, viewsScene("PCMScene.qml"));
    add<LargeChartViewController>(Scenes::largeChartView, viewsScene("LargeChartScene.qml"));
    add<MCViewController>(Scenes::managementConsoleView, viewsScene("MCScene.qml"));
    add<LPListViewController>(Scenes::logicalPartitionsView, viewsScene("GroupedListScene.qml"));
    add<LPDetailViewController>(Scenes::logicalPartitionsDetail, viewsScene("DetailScene.qml"));
    add<VIOSViewController>(Scenes::viosView, viewsScene("GroupedListScene.qml"));
    add<VIOSDetailViewController>(Scenes::viosDetail, viewsScene("DetailScene.qml"));
    add<RGListViewController>(Scenes::resourceGroupsView, viewsScene("RGListScene.qml"));
    add<SEListViewController>(Scenes::serviceableEventsView, viewsScene("SEListScene.qml"));
    add<SEDetailViewController>(Scenes::serviceableEventsDetail, viewsScene("DetailScene.qml"));
    add<VersionViewController>(Scenes::versionViewController, viewsScene("RichDocumentScene.qml"));
    add<OpenSourceViewController>(Scenes::openSourceViewController, viewsScene("OpenSourceScene.qml"));
    add<AttentionViewController>(Scenes::attentionView, viewsScene("AttentionScene.qml"));
    add<FindViewController>(Scenes::findView, viewsScene("FindScene.qml"));
    add<WatchViewController>(Scenes::watchView, viewsScene("WatchScene.qml"));
    add<WatchConsolesViewController>(Scenes::watchConsolesView, viewsScene("WatchConsolesScene.qml"));
    add<FleetSheetViewController>(Scenes::fleetSheetView, viewsScene("FleetSheetScene.qml"));
    add<FleetChooseViewController>(Scenes::fleetChooseView, viewsScene("FleetChooseScene.qml"));
    add<FleetUnusableViewController>(Scenes::fleetUnusableView, viewsScene("FleetUnusableScene.qml"));
    add<FleetVerifyViewController>(Scenes::fleetVerifyView, viewsScene("FleetVerifyScene.qml"));
    add<OrnisLicenseViewController>(Scenes::OrnisLicenseViewController, viewsScene("RichDocumentScene.qml"));
}

} // namespace lodestar
