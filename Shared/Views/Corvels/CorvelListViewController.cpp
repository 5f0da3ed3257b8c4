// SPDX-License-Identifier: Apache-2.0
#include "Views/Corvels/CorvelListViewController.h"

#include "Application/Model/Setting.h"
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Fleet/Attention.h"
#include "Fleet/FleetSheet.h"
#include "Fleet/ObjectTable.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Fleet/Watch.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "Platform/UserDefaults.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/Scenes.h"
#include "Views/Common/TabRoot.h"
#include "Views/Corvels/CorvelListCell.h"
#include "Views/Corvels/CorvelMenu.h"
#include "Views/FleetSheet/FleetSheetText.h"

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

constexpr auto fileName = "Shared/Views/Corvels/CorvelListViewController";

constexpr double rowHeight = 92;
constexpr double separatorLeft = 10;
constexpr double separatorRight = 15;

// Heights of the sheet below its bar, in points. The two heights without status line differ by one point; that is
// meant: 224 is the form as it opens, 223 the form after a status line was shown.
constexpr double sheetHeight = 224;
constexpr double sheetHeightWithStatus = 266;
constexpr double sheetHeightAfterStatus = 223;

constexpr int deleteButton = 0;
constexpr int editButton = 1;

CorvelListViewController::IntroPresenter& introPresenter()
{
    static CorvelListViewController::IntroPresenter presenter;
    return presenter;
}

QList<SwipeButton> makeRightButtons()
{
    return {{CorvelListViewController::tr("Delete"), Role::Button::Destructive},
            {CorvelListViewController::tr("Edit"), Role::Button::Quiet}};
}

QList<SwipeButton> makeLeftButtons()
{
    return {
        {CorvelListViewController::tr("Connection"), Role::Button::Standard, QStringLiteral("connection"), {}, true}};
}

} // namespace

void CorvelListViewController::setIntroPresenter(IntroPresenter presenter)
{
    introPresenter() = std::move(presenter);
}

CorvelListViewController::CorvelListViewController() : m_tableView(*this, TableKind::Main)
{
    m_tableView.setRowHeight(rowHeight);
}

bool CorvelListViewController::isFeedbackHidden() const
{
    return !VireoLogger::settings().offersEntry;
}

void CorvelListViewController::viewDidLoad()
{
    LODESTAR_LOG(fileName, "-[CorvelListViewController viewDidLoad]", "CorvelListViewController instantiation");
    m_tableView.setSeparatorInset(separatorLeft, separatorRight);
    setTitle(tr("My Corvels"));
    setBackTitle(QStringLiteral(""));

    const UserDefaults& defaults = UserDefaults::standard();
    if (!defaults.boolForKey(Setting::initialLoad)) {
        addTestCorvel();
    }
    if (!defaults.boolForKey(Setting::showedPreview) && introPresenter()) {
        ViewController* over = tabBarController();
        introPresenter()(over != nullptr ? *over : *this, self<CorvelListViewController>());
    }
    connect(&m_tableView, &TableOutlet::countChanged, this, &CorvelListViewController::showCount);
    connect(&m_tableView, &TableOutlet::hiddenChanged, this, [this] {
        if (NavigationController* const stack = navigationController()) {
            stack->columnsDidChange();
        }
    });
    showCount();
    connect(&m_refreshControl, &RefreshControl::valueChanged, this, &CorvelListViewController::refresh);
    observeNotifications();
    m_tableView.reloadData();
    if (RESTHandler::sharedInstance().corvelList().empty()) {
        m_tableView.setHidden(true);
    }
    m_viewHasAppearedOnce = true;
    dataRefresh();
}

void CorvelListViewController::viewDidAppear()
{
    // Other screens refresh consoles, too.
    if (std::exchange(m_readUnseen, false)) {
        m_tableView.reloadData();
    }
    m_readingWatch.begin([this] {
        ++m_marksTurn;
        Q_EMIT marksChanged();
    });
}

void CorvelListViewController::viewDidDisappear()
{
    m_readingWatch.end();
}

Table CorvelListViewController::shownTable()
{
    std::vector<ConsoleSnapshot> consoles;
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        consoles.push_back(snapshotOf(corvel));
    }
    return tableOfConsoles(consoles);
}

void CorvelListViewController::observeNotifications()
{
    NotificationCenter& center = NotificationCenter::defaultCenter();
    m_observations.push_back(center.addObserver("CloseDeltaCorvel", [this] { hideModalView(); }));
    m_observations.push_back(center.addObserver("CorvelAdded", [this] { showCorvels(); }));
    m_observations.push_back(center.addObserver("FleetWasAdded", [this] { showFleet(); }));
    m_observations.push_back(center.addObserver("StatusWillShow", [this] { statusWillShow(); }));
    m_observations.push_back(center.addObserver("StatusShouldHide", [this] { statusShouldHide(); }));
    m_observations.push_back(center.addObserver("ReadingsDidChange", [this] { m_readUnseen = !isInWindow(); }));
    for (const char* name : {"WatchDidRefresh", "CorvelDidRefresh"}) {
        m_observations.push_back(center.addObserver(name, [this] { m_tableView.reloadData(); }));
    }
    m_observations.push_back(center.addObserver("FeedbackEntryDidChange", [this] { Q_EMIT feedbackHiddenChanged(); }));
}

void CorvelListViewController::addTestCorvel()
{
    addDemoCorvel();
    UserDefaults::standard().setBool(true, Setting::initialLoad);
}

void CorvelListViewController::dataRefresh()
{
    LODESTAR_LOG(fileName, "-[CorvelListViewController dataRefresh]",
                 "CorvelListViewController: Refreshing data from REST");
    // A copy is walked, because a demonstration console may finish, and change the list, before the next one is asked.
    const std::vector<CorvelRef> corvels = RESTHandler::sharedInstance().corvelList();
    for (const CorvelRef& corvel : corvels) {
        refreshCorvel(corvel);
    }
}

void CorvelListViewController::refreshCorvel(const CorvelRef& corvel)
{
    // The promise keeps the screen until the result is stored, even when the screen was closed.
    const auto screen = self<CorvelListViewController>();
    fetchInventory(corvel, Urgency::Fleet)
        .thenOnMain(
            [screen, corvel, byHand = m_isRefreshedByHand](const std::string&) {
                screen->didRefreshCorvel(corvel);
                if (byHand) {
                    Watch::shared().didRefreshByHand(*corvel);
                }
            },
            [screen, corvel](const Error& error) { screen->didFailToRefreshCorvel(corvel, error); });
}

void CorvelListViewController::didRefreshCorvel(const CorvelRef& corvel)
{
    if (!mayFinishRefresh(corvel)) {
        return;
    }
    LODESTAR_LOG(fileName, "-[CorvelListViewController dataRefresh]", "CorvelListViewController: Parsing mcvi");
    LODESTAR_LOG(fileName, "-[CorvelListViewController dataRefresh]", "CorvelListViewController: Parsing version");
    finishRefresh(*corvel);
    m_tableView.reloadData();
}

void CorvelListViewController::didFailToRefreshCorvel(const CorvelRef& corvel, const Error& error)
{
    failRefresh(*corvel);
    m_tableView.reloadData();
    LODESTAR_LOG(fileName, "-[CorvelListViewController dataRefresh]", "Error: {} - > {}", description(error),
                 "dataRefresh");
}

void CorvelListViewController::refresh()
{
    if (m_viewHasAppearedOnce) {
        resetFetchData();
    }
    m_tableView.reloadData();
    m_isRefreshedByHand = true;
    dataRefresh();
    m_isRefreshedByHand = false;
    m_refreshControl.endRefreshing();
}

void CorvelListViewController::resetFetchData()
{
    forgetFetchedData();
}

void CorvelListViewController::introDidFinish()
{
    UserDefaults& defaults = UserDefaults::standard();
    defaults.setBool(true, Setting::showedPreview);
    defaults.synchronize();
    dataRefresh();
}

int CorvelListViewController::numberOfRowsInSection(TableKind /*tableView*/, int /*section*/) const
{
    return static_cast<int>(RESTHandler::sharedInstance().corvelList().size());
}

QVariant CorvelListViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const CorvelRef corvel = corvelAtRow(indexPath.row);
    if (!corvel) {
        return {};
    }
    CorvelListCell cell;
    cell.configure(*corvel);
    cell.rightButtons = makeRightButtons();
    cell.leftButtons = makeLeftButtons();
    cell.record = corvel;
    return QVariant::fromValue(cell);
}

void CorvelListViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const CorvelRef corvel = corvelAtRow(indexPath.row);
    if (!corvel || !corvel->completedFetch || !corvel->isOnline) {
        return;
    }
    openScene(*this, Scenes::corvelTasksViewController, corvel);
    m_tableView.deselectRow(indexPath);
}

bool CorvelListViewController::swipeTableCell(int row, int tappedButtonAtIndex)
{
    const CorvelRef corvel = corvelAtRow(row);
    if (corvel && tappedButtonAtIndex == deleteButton) {
        deleteCorvelAtIndex(static_cast<std::size_t>(row));
        closeScreenOf(corvel);
        m_tableView.deleteRow({0, row}, RowAnimation::Left);
        m_tableView.setHidden(RESTHandler::sharedInstance().corvelList().empty());
    } else if (corvel && tappedButtonAtIndex == editButton) {
        presentEditor({.corvel = corvel, .parentList = {}});
    }
    return true;
}

/// In two columns the list is seen beside what it opened.
void CorvelListViewController::closeScreenOf(const CorvelRef& corvel) const
{
    NavigationController* const stack = navigationController();
    if (stack != nullptr && stack->depth() > 1) {
        const auto* const beside = dynamic_cast<const CorvelReceiving*>(stack->viewControllers()[1].get());
        if (beside != nullptr && beside->corvel() == corvel) {
            stack->popToRoot();
        }
    }
}

ReadingMark CorvelListViewController::markOf(const CorvelListCell& cell, int /*turn*/) const
{
    const CorvelRef corvel = cell.record.lock();
    return corvel ? markOfConsole(*Readings::shared().of(*corvel), AgeClock::now()) : ReadingMark();
}

void CorvelListViewController::openConnection(int row)
{
    if (const CorvelRef corvel = corvelAtRow(row)) {
        openScene(*this, Scenes::connectionView, corvel);
    }
}

void CorvelListViewController::presentMenu(int row)
{
    if (const CorvelRef corvel = corvelAtRow(row)) {
        m_tableView.setEditing(false, true);
        presentCorvelMenu(m_rowMenu, shared_from_this(), corvel);
    }
}

void CorvelListViewController::addCorvel()
{
    presentEditor({.corvel = {}, .parentList = self<CorvelListViewController>()});
}

void CorvelListViewController::presentEditor(EditorInput input)
{
    m_tableView.setEditing(false, true);
    presentSemiViewController(Storyboard::main().instantiateViewController(Scenes::deltaCorvel, std::move(input)),
                              {.pushParentBack = false, .height = restingSheetHeight()});
}

void CorvelListViewController::openFeedback()
{
    VireoLogger::feedback();
}

void CorvelListViewController::openSettings()
{
    openScene(*this, Scenes::settingsViewController);
}

void CorvelListViewController::openFleetSheet()
{
    openScene(*this, Scenes::fleetSheetView);
}

bool CorvelListViewController::hasDemo()
{
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    return std::ranges::any_of(corvels, [](const CorvelRef& corvel) { return corvel->demo() == 1; });
}

void CorvelListViewController::lookAtDemo()
{
    // The button can be pressed while the picture fades.
    if (!hasDemo()) {
        addDemoCorvel();
        saveIgnoringErrors();
        showFleet();
        dataRefresh();
    }
}

void CorvelListViewController::showFleet()
{
    m_tableView.setHidden(RESTHandler::sharedInstance().corvelList().empty());
    m_tableView.reloadData();
}

void CorvelListViewController::showCount()
{
    // What a sheet of this list would hold: the demonstration console is in none.
    const std::size_t count = fleetSheetOf(RESTHandler::sharedInstance().corvelList()).rows.size();
    m_countLabel.setText(count == 0 ? QString() : FleetSheetText::consoles(count));
    m_nextSteps.setHidden(m_tableView.rows() != 1 || !hasDemo());
}

double CorvelListViewController::restingSheetHeight() const
{
    return sheetHeight;
}

void CorvelListViewController::hideModalView()
{
    dismissSemiModalView();
    showCorvels();
}

void CorvelListViewController::showCorvels()
{
    if (RESTHandler::sharedInstance().corvelList().size() == 1) {
        m_tableView.setHidden(false);
    }
    m_tableView.reloadData();
}

void CorvelListViewController::statusWillShow()
{
    resizeSemiView(sheetHeightWithStatus);
}

void CorvelListViewController::statusShouldHide()
{
    resizeSemiView(sheetHeightAfterStatus);
}

void bringBackDemo(TabBarController& tabs)
{
    const auto [list, index] = rootOf<CorvelListViewController>(tabs);
    if (list != nullptr) {
        tabs.setSelectedIndex(index);
        list->navigationController()->popToRoot();
        list->lookAtDemo();
    }
}

} // namespace lodestar
