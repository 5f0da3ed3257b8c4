// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"
#include "Kit/Core/TabBarController.h"
#include "Kit/Core/Table.h"
#include "Platform/NotificationCenter.h"
#include "Views/Attention/AttentionNowController.h"
#include "Views/Attention/ChangesViewController.h"
#include "Views/Attention/FleetEventsViewController.h"
#include "Views/Common/ListShare.h"

#include <array>
#include <memory>
#include <vector>

namespace lodestar
{

/// The tab Attention: what is wrong now, what changed, and all events, as three segments with one bar. It is the
/// segments' host, and keeps what a person chose to see in them until the program ends. Main thread.
class AttentionViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the storyboard")
    Q_PROPERTY(lodestar::SegmentedControlOutlet* segmentedControl READ segmentedControl CONSTANT)
    Q_PROPERTY(lodestar::RefreshControl* refreshControl READ refreshControl CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* watchLabel READ watchLabel CONSTANT)
    Q_PROPERTY(lodestar::AttentionNowController* now READ now CONSTANT)
    Q_PROPERTY(lodestar::ChangesViewController* changes READ changes CONSTANT)
    Q_PROPERTY(lodestar::FleetEventsViewController* events READ events CONSTANT)
    Q_PROPERTY(lodestar::ListShare* share READ share CONSTANT)
    Q_PROPERTY(bool filtered READ isFiltered NOTIFY filterChanged)

public:
    enum class Segment { Now, Changes, Events };

    AttentionViewController();

    SegmentedControlOutlet* segmentedControl() { return &m_segmentedControl; }
    RefreshControl* refreshControl() { return &m_refreshControl; }
    /// "off", or how often the watch reads.
    LabelOutlet* watchLabel() { return &m_watchLabel; }
    /// The rows of the segment that is seen.
    ListShare* share() { return &m_share; }
    AttentionNowController* now() const { return m_now.get(); }
    ChangesViewController* changes() const { return m_changes.get(); }
    FleetEventsViewController* events() const { return m_events.get(); }

    const FindingFilter& filter() const { return m_filter; }
    void setFilter(FindingFilter filter);
    bool isFiltered() const { return m_filter.isSet(); }
    /// Shows all again; the grouping stays.
    Q_INVOKABLE void showAll();
    /// Shows the events of all consoles again, the newest first.
    Q_INVOKABLE void showAllEvents();

    /// Handles a pull to refresh: reads every console again. Rows stay as they are until a reading has ended.
    void refresh();
    Q_INVOKABLE void openWatch();
    Q_INVOKABLE void openFilter();
    /// Shows the console list with its form for a new console.
    Q_INVOKABLE void addCorvel();

Q_SIGNALS:
    void filterChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;

private:
    AttentionSegment& segment() const;
    QString shareName() const;
    void showSegment();
    void showWatch();
    void dropDeletedConsoles();

    const std::shared_ptr<AttentionNowController> m_now;
    const std::shared_ptr<ChangesViewController> m_changes;
    const std::shared_ptr<FleetEventsViewController> m_events;
    AttentionSegment* m_shown = nullptr; ///< the segment that appears
    FindingFilter m_filter;
    SegmentedControlOutlet m_segmentedControl;
    RefreshControl m_refreshControl;
    LabelOutlet m_watchLabel;
    std::vector<NotificationCenter::Observation> m_observations;
    ListShare m_share{[this] { return shareName(); }, [this] { return segment().shownTable(); }};
};

/// Shows the tab Attention of these tabs, its segment Now, as its first screen. Null when the tabs have none.
AttentionViewController* showAttention(TabBarController& tabs);
/// Likewise from a screen within the tabs, with that console alone.
void showAttentionOf(const ViewController& from, const CorvelRef& corvel);
/// Makes a tab's badge count what needs attention, for as long as the tabs live.
void countAttention(TabBarController& tabs, int index);

} // namespace lodestar
