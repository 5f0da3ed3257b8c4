// SPDX-License-Identifier: Apache-2.0
#include "Views/Dashboard/DashboardTableViewController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Inventory/Feed.h"
#include "Inventory/Totals.h"
#include "Kit/Core/TabBarController.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/Queues/OwnThread.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ScreenLog.h"
#include "Views/Common/TabRoot.h"
#include "Views/Corvels/CorvelListViewController.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

namespace lodestar
{
namespace
{

constexpr ScreenLog screenLog("Shared/Views/Dashboard/DashboardTableViewController");

constexpr int managedSystemsRow = 2;
constexpr int partitionsRow = 5;
constexpr double tabletSide = 600;
constexpr double tabletRatio = 2.2;
constexpr double phoneRatio = 1.2;

constexpr double animationTime = 1.5;

/// A wait that ends sooner shows no text.
constexpr std::chrono::milliseconds waitingInterval{1500};

/// Adds the three feeds of one console. A missing feed does not prevent the others from being counted.
void addCorvel(Totals& totals, const Corvel& corvel)
{
    const auto feed = [&corvel](std::string_view type, int line, std::string_view missing) {
        Feed found = feedOfType(corvel, type);
        if (found.isNA()) {
            screenLog.write(line, "createDashboard", missing);
        }
        return found;
    };
    totals.addConsole(corvel);
    totals.addManagedSystems(
        feed(ObjectType::ManagedSystem, 131, "Managed Systems data isn't available for this Corvel, was it loaded?"));
    totals.addPartitions(feed(ObjectType::LogicalPartition, 147,
                              "Logical partitions data isn't available for this Corvel, was it loaded?"));
    totals.addEvents(
        feed(ObjectType::ServiceableEvent, 154, "Serviceable data isn't available for this Corvel, was it loaded?"));
}

QList<QColor> managedSystemColors()
{
    return {UIColor::dashboardBlue(), UIColor::dashboardRed(), UIColor::dashboardGreen(), UIColor::dashboardGrey(),
            UIColor::dashboardYellow()};
}

QList<QColor> partitionColors()
{
    return {UIColor::dashboardYellow(), UIColor::dashboardGreen(), UIColor::dashboardBlue(), UIColor::dashboardGrey(),
            UIColor::dashboardOrange()};
}

/// Shows the plain count without a sign; a fractional count would have one digit.
NumberFormatter valueFormatter()
{
    NumberFormatter formatter;
    formatter.numberStyle = NumberFormatter::Style::Percent;
    formatter.maximumFractionDigits = 1;
    formatter.multiplier = 1.0;
    formatter.percentSymbol.clear();
    return formatter;
}

/// Colours are given by position, so a state has no fixed colour.
PieChartData pieData(const StateCounts& counts, const QList<QColor>& colors, double valueFontSize)
{
    PieChartData data;
    for (const auto& [state, count] : counts.entries()) {
        data.dataSet.entries.append(BarChartEntry{static_cast<float>(count), static_cast<int>(data.xVals.size())});
        data.xVals.append(QString::fromStdString(state));
    }
    data.dataSet.colors = colors;
    data.setValueFormatter(valueFormatter());
    data.setValueFont(chartFont(QStringLiteral("HelveticaNeue"), valueFontSize));
    data.setValueTextColor(Qt::white);
    return data;
}

} // namespace

DashboardTableViewController::DashboardTableViewController()
{
    setContentHidden(true);
    m_noDataView.setHidden(true);
    m_waitingLabel.setHidden(true);
}

DashboardTableViewController::~DashboardTableViewController()
{
    // The threads are not joined: at idle priority they may take long to notice the request, and they use nothing of
    // this object.
    m_stopWaiting.request_stop();
}

void DashboardTableViewController::viewDidLoad()
{
    setTitle(tr("Dashboard"));
}

void DashboardTableViewController::viewDidAppear()
{
    UILoadingContent();
    m_marks.begin();
    // Every appearance starts a wait. When the dashboard appears again during a wait, it is drawn twice.
    std::thread([dashboard = weak_from_this(), stop = m_stopWaiting.get_token()] {
        const OwnThread thread("lodestar-wait");
        OwnThread::takeIdlePriority();
        waitForRequestToEnd(dashboard, stop);
    }).detach();
}

void DashboardTableViewController::waitForRequestToEnd(const std::weak_ptr<ViewController>& dashboard,
                                                       const std::stop_token& stop)
{
    const RESTHandler& rest = RESTHandler::sharedInstance();
    // This loop polls without a pause; that is meant, so that the numbers are there as soon as the last console is
    // done. Idle priority keeps it from disturbing other threads. If a console is never done, the loop does not end.
    std::size_t count = 0;
    std::size_t done = 0;
    do {
        if (stop.stop_requested()) {
            return;
        }
        done = static_cast<std::size_t>(std::ranges::count_if(
            *rest.corvelListSnapshot(), [](const CorvelRef& corvel) { return corvel->completedFetch.load(); }));
        // The list is asked again, so that a console added during the count is waited for too.
        count = rest.corvelListSnapshot()->size();
    } while (done < count);

    MainQueue::shared().async([dashboard, count] {
        const auto screen = std::static_pointer_cast<DashboardTableViewController>(dashboard.lock());
        if (!screen) {
            return;
        }
        if (count == 0) {
            screen->showNothing();
        } else {
            screen->createDashboard();
        }
    });
}

void DashboardTableViewController::createDashboard()
{
    Totals totals;
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    for (const CorvelRef& corvel : corvels) {
        addCorvel(totals, *corvel);
    }
    m_corvelOnlineCount.setText(QStringLiteral("%1 / %2").arg(totals.online).arg(static_cast<int>(corvels.size())));
    m_attentionLEDCount.setText(QString::number(totals.attentionLEDs));
    m_totalEventsCount.setText(QString::number(totals.events));
    applySettings(m_manSysPieChartView);
    m_manSysPieChartView.setData(pieData(totals.managedSystems, managedSystemColors(), 12));
    m_manSysPieChartView.highlightValues({});
    applySettings(m_lparPieChartView);
    m_lparPieChartView.setData(pieData(totals.partitions, partitionColors(), 10));
    m_lparPieChartView.highlightValues({});
    m_bars.show(totals.partitions, partitionColors());
    m_marks.take();
    UIShowContent();
}

void DashboardTableViewController::applySettings(PieChartView& pie)
{
    pie.setDelegate(this);
    pie.setUsePercentValues(true);
    pie.setHoleTransparent(true);
    pie.setHoleRadiusPercent(0.54);
    pie.setTransparentCircleRadiusPercent(0.58);
    pie.setDescriptionText(QString());
    pie.setDrawHole(true);
    pie.setRotationAngle(0);
    pie.setRotationEnabled(true);
    Legend legend = pie.legend();
    legend.position = LegendPosition::AboveChartLeft;
    legend.xEntrySpace = 0.8;
    legend.yEntrySpace = 0.8;
    legend.yOffset = 18;
    pie.setLegend(legend);
    pie.setDrawSliceText(false);
    // This overrides the setting made before: slices show counts, not shares.
    pie.setUsePercentValues(false);
    pie.setRotationWithTwoFingers(true);
}

void DashboardTableViewController::UILoadingContent()
{
    setContentHidden(true);
    m_noDataView.setHidden(true);
    for (IndicatorOutlet* indicator : {&m_manSysLoadingIndicator, &m_lParLoadingIndicator}) {
        indicator->setHidden(false);
        indicator->startAnimating();
    }
    m_wait += m_wait % 2 == 0 ? 1 : 2;
    tellWhatIsWaitedForLater(m_wait);
}

void DashboardTableViewController::tellWhatIsWaitedForLater(int wait)
{
    MainQueue::shared().asyncAfter(waitingInterval, [weak = weak_from_this(), wait] {
        const auto dashboard = std::static_pointer_cast<DashboardTableViewController>(weak.lock());
        if (!dashboard || dashboard->m_wait != wait) {
            return;
        }
        const QString text = waitingText();
        dashboard->m_waitingLabel.setText(text);
        dashboard->m_waitingLabel.setHidden(text.isEmpty());
        dashboard->tellWhatIsWaitedForLater(wait);
    });
}

QString DashboardTableViewController::waitingText()
{
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    const auto isWaitedFor = [](const CorvelRef& corvel) { return !corvel->completedFetch; };
    const auto count = std::ranges::count_if(corvels, isWaitedFor);
    if (count == 0) {
        return {};
    }
    if (count == 1) {
        return tr("Waiting for %1")
            .arg(isolated(rowText((*std::ranges::find_if(corvels, isWaitedFor))->name().value_or(""))));
    }
    return tr("Waiting for %1 of %Ln consoles", nullptr, static_cast<int>(corvels.size())).arg(count);
}

void DashboardTableViewController::UIShowContent()
{
    stopLoading();
    setContentHidden(false);
    for (PieChartView* pie : {&m_manSysPieChartView, &m_lparPieChartView}) {
        pie->animate(animationTime, animationTime, ChartEasingOption::EaseOutBack);
    }
}

void DashboardTableViewController::showNothing()
{
    stopLoading();
    m_noDataView.setHidden(false);
}

void DashboardTableViewController::addConsole()
{
    if (TabBarController* const tabs = tabBarController()) {
        const auto [list, index] = rootOf<CorvelListViewController>(*tabs);
        if (list != nullptr) {
            tabs->setSelectedIndex(index);
            list->addCorvel();
        }
    }
}

void DashboardTableViewController::stopLoading()
{
    m_wait += m_wait % 2;
    m_waitingLabel.setHidden(true);
    for (IndicatorOutlet* indicator : {&m_manSysLoadingIndicator, &m_lParLoadingIndicator}) {
        indicator->stopAnimating();
        indicator->setHidden(true);
    }
}

void DashboardTableViewController::setContentHidden(bool hidden)
{
    const std::array<ViewOutlet*, 9> views = {&m_corvelOnlineCount,   &m_attentionLEDCount,  &m_totalEventsCount,
                                              &m_corvelOnlineStatus,  &m_attentionLEDStatus, &m_totalEventsStatus,
                                              &m_CorvelOverviewLabel, &m_managedSystemLabel, &m_lparLabel};
    for (ViewOutlet* view : views) {
        view->setHidden(hidden);
    }
    m_manSysPieChartView.setHidden(hidden);
    m_lparPieChartView.setHidden(hidden);
    m_bars.setShown(!hidden);
}

void DashboardTableViewController::setViewSize(double width, double shortestSide)
{
    m_viewWidth = width;
    m_tabletIdiom = shortestSide >= tabletSide;
    Q_EMIT viewSizeChanged();
}

std::optional<double> DashboardTableViewController::heightForRowAtIndexPath(IndexPath indexPath) const
{
    // Rows are counted without regard to sections.
    if (indexPath.row != managedSystemsRow && indexPath.row != partitionsRow) {
        return std::nullopt;
    }
    return chartRowHeight();
}

double DashboardTableViewController::chartRowHeight() const
{
    return m_viewWidth / (m_tabletIdiom ? tabletRatio : phoneRatio);
}

} // namespace lodestar
