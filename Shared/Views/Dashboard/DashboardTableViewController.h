// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PieChartView.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/SpansColumns.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Views/Dashboard/DashboardBars.h"
#include "Views/Dashboard/DashboardMarks.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace lodestar
{

/// The dashboard: how many consoles are online, how many attention LEDs are lit, how many events there are, and two
/// pies of states, in which tapping a slice only makes it stand out. The dashboard fetches nothing. Each time it
/// appears, it waits until every console of the working list has been fetched and then shows what the records contain.
/// Main thread, except for the wait.
class DashboardTableViewController : public lodestar::ViewController, public ChartViewDelegate, public SpansColumns
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::IndicatorOutlet* lParLoadingIndicator READ lParLoadingIndicator CONSTANT)
    Q_PROPERTY(lodestar::IndicatorOutlet* manSysLoadingIndicator READ manSysLoadingIndicator CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* corvelOnlineCount READ corvelOnlineCount CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* attentionLEDCount READ attentionLEDCount CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* totalEventsCount READ totalEventsCount CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* corvelOnlineStatus READ corvelOnlineStatus CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* attentionLEDStatus READ attentionLEDStatus CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* totalEventsStatus READ totalEventsStatus CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* corvelOverviewLabel READ CorvelOverviewLabel CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* managedSystemLabel READ managedSystemLabel CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* lparLabel READ lparLabel CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* noDataView READ noDataView CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* waitingLabel READ waitingLabel CONSTANT)
    Q_PROPERTY(lodestar::PieChartView* manSysPieChartView READ manSysPieChartView CONSTANT)
    Q_PROPERTY(lodestar::PieChartView* lparPieChartView READ lparPieChartView CONSTANT)
    Q_PROPERTY(lodestar::DashboardBars* bars READ bars CONSTANT)
    Q_PROPERTY(lodestar::DashboardMarks* marks READ marks CONSTANT)
    Q_PROPERTY(double chartRowHeight READ chartRowHeight NOTIFY viewSizeChanged)

public:
    DashboardTableViewController();
    /// Asks the waits that still run to end.
    ~DashboardTableViewController() override;

    IndicatorOutlet* lParLoadingIndicator() { return &m_lParLoadingIndicator; }
    IndicatorOutlet* manSysLoadingIndicator() { return &m_manSysLoadingIndicator; }
    LabelOutlet* corvelOnlineCount() { return &m_corvelOnlineCount; }
    LabelOutlet* attentionLEDCount() { return &m_attentionLEDCount; }
    LabelOutlet* totalEventsCount() { return &m_totalEventsCount; }
    ViewOutlet* corvelOnlineStatus() { return &m_corvelOnlineStatus; }
    ViewOutlet* attentionLEDStatus() { return &m_attentionLEDStatus; }
    ViewOutlet* totalEventsStatus() { return &m_totalEventsStatus; }
    ViewOutlet* CorvelOverviewLabel() { return &m_CorvelOverviewLabel; }
    ViewOutlet* managedSystemLabel() { return &m_managedSystemLabel; }
    ViewOutlet* lparLabel() { return &m_lparLabel; }
    /// Visible when there is nothing to sum up.
    ViewOutlet* noDataView() { return &m_noDataView; }
    /// Names the consoles that are waited for, once the wait has taken a while.
    LabelOutlet* waitingLabel() { return &m_waitingLabel; }
    PieChartView* manSysPieChartView() { return &m_manSysPieChartView; }
    PieChartView* lparPieChartView() { return &m_lparPieChartView; }
    /// What stands below the pies.
    DashboardBars* bars() { return &m_bars; }
    DashboardMarks* marks() { return &m_marks; }

    /// Waits until every console of the working list has been fetched, then schedules `createDashboard` on the main
    /// thread and returns. Returns early when asked to stop. Background thread; while waiting, it holds no strong
    /// reference to the dashboard.
    static void waitForRequestToEnd(const std::weak_ptr<ViewController>& dashboard, const std::stop_token& stop);
    void createDashboard();
    void UILoadingContent();
    void UIShowContent();

    /// Sets the size of the controller's view, and the shorter side of the screen, by which a tablet is recognised.
    /// Points.
    Q_INVOKABLE void setViewSize(double width, double shortestSide);
    /// Opens the editor of the console list, for users who have no console yet.
    Q_INVOKABLE void addConsole();
    /// Nothing for a row whose height the scene decides.
    std::optional<double> heightForRowAtIndexPath(IndexPath indexPath) const;
    double chartRowHeight() const;

Q_SIGNALS:
    void viewSizeChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override { m_marks.end(); }

private:
    void showNothing();
    void stopLoading();
    void tellWhatIsWaitedForLater(int wait);
    static QString waitingText();
    void applySettings(PieChartView& pie);
    void setContentHidden(bool hidden);

    std::stop_source m_stopWaiting;
    int m_wait = 0; ///< counts changes between loading and loaded; odd while loading is shown
    double m_viewWidth = 0;
    bool m_tabletIdiom = false;

    IndicatorOutlet m_lParLoadingIndicator;
    IndicatorOutlet m_manSysLoadingIndicator;
    LabelOutlet m_corvelOnlineCount;
    LabelOutlet m_attentionLEDCount;
    LabelOutlet m_totalEventsCount;
    ViewOutlet m_corvelOnlineStatus;
    ViewOutlet m_attentionLEDStatus;
    ViewOutlet m_totalEventsStatus;
    ViewOutlet m_CorvelOverviewLabel;
    ViewOutlet m_managedSystemLabel;
    ViewOutlet m_lparLabel;
    ViewOutlet m_noDataView;
    LabelOutlet m_waitingLabel;
    PieChartView m_manSysPieChartView;
    PieChartView m_lparPieChartView;
    DashboardBars m_bars;
    DashboardMarks m_marks;
};

} // namespace lodestar
