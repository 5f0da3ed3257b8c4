// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/AttentionViewController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Fleet/Watch.h"
#include "Kit/Core/NavigationController.h"
#include "Views/Attention/AttentionFilterController.h"
#include "Views/Attention/WatchText.h"
#include "Views/Common/Scenes.h"
#include "Views/Common/TabRoot.h"
#include "Views/Corvels/CorvelListViewController.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double filterHeight = 520;
constexpr int mostCounted = 99;

TabBadge badgeOf(const QString& title, int count)
{
    if (count == 0) {
        return {};
    }
    //: %1 the name of a tab
    return {count > mostCounted ? AttentionViewController::tr("99+") : QLocale().toString(count),
            AttentionViewController::tr("%1, %Ln things", nullptr, count).arg(title)};
}

/// Keeps an observation until its parent goes. A child and no connection to `destroyed`: Qt ends the process when there
/// is no memory for the first connection of an object, and a reset makes the tabs anew at any moment.
class Observing : public QObject
{
public:
    Observing(QObject& parent, NotificationCenter::Observation observation)
        : QObject(&parent), m_observation(std::move(observation))
    {
    }

private:
    NotificationCenter::Observation m_observation;
};

} // namespace

AttentionViewController::AttentionViewController()
    : m_now(makeController<AttentionNowController>()),
      m_changes(makeController<ChangesViewController>()),
      m_events(makeController<FleetEventsViewController>())
{
    for (AttentionSegment* each :
         {static_cast<AttentionSegment*>(m_now.get()), static_cast<AttentionSegment*>(m_changes.get()),
          static_cast<AttentionSegment*>(m_events.get())}) {
        each->setHost(*this);
    }
}

void AttentionViewController::viewDidLoad()
{
    setTitle(tr("Attention"));
    setBackTitle(QStringLiteral(""));
    connect(&m_refreshControl, &RefreshControl::valueChanged, this, &AttentionViewController::refresh);
    connect(&m_segmentedControl, &SegmentedControlOutlet::selectedSegmentIndexChanged, this,
            &AttentionViewController::showSegment);
    NotificationCenter& center = NotificationCenter::defaultCenter();
    m_observations.push_back(center.addObserver("WatchDidChange", [this] { showWatch(); }));
    m_observations.push_back(center.addObserver("CorvelsDidChange", [this] { dropDeletedConsoles(); }));
    showWatch();
}

void AttentionViewController::viewDidAppear()
{
    showSegment();
}

void AttentionViewController::viewDidDisappear()
{
    if (AttentionSegment* const shown = std::exchange(m_shown, nullptr)) {
        shown->endAppearance();
    }
}

AttentionSegment& AttentionViewController::segment() const
{
    switch (static_cast<Segment>(m_segmentedControl.selectedSegmentIndex())) {
    case Segment::Changes:
        return *m_changes;
    case Segment::Events:
        return *m_events;
    default:
        return *m_now;
    }
}

QString AttentionViewController::shareName() const
{
    // The first segment is the tab itself.
    //: The name of a file: the tab "Attention" and what of it
    return &segment() == m_now.get() ? title() : tr("%1, %2").arg(title(), segment().title());
}

void AttentionViewController::showSegment()
{
    if (!isInWindow() || m_shown == &segment()) {
        return;
    }
    if (AttentionSegment* const before = std::exchange(m_shown, &segment())) {
        before->endAppearance();
        m_events->searchBar()->cancel();
    }
    m_shown->beginAppearance();
}

void AttentionViewController::setFilter(FindingFilter filter)
{
    m_filter = std::move(filter);
    m_now->setFilter(m_filter);
    m_changes->setFilter(m_filter);
    m_events->setFilter(m_filter);
    Q_EMIT filterChanged();
}

void AttentionViewController::showAll()
{
    setFilter({.grouping = m_filter.grouping, .kinds = {}, .consoles = {}});
}

void AttentionViewController::showAllEvents()
{
    m_events->resetChoice();
    FindingFilter filter = m_filter;
    filter.consoles.clear();
    setFilter(std::move(filter));
}

void AttentionViewController::dropDeletedConsoles()
{
    FindingFilter filter = m_filter;
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    const auto isDeleted = [&](const Corvel* chosen) {
        return std::ranges::none_of(corvels, [&](const CorvelRef& each) { return each.get() == chosen; });
    };
    if (std::erase_if(filter.consoles, isDeleted) > 0) {
        setFilter(std::move(filter));
    }
}

void AttentionViewController::refresh()
{
    // A copy is walked, because a demonstration console may finish, and change the list, before the next one is asked.
    const std::vector<CorvelRef> corvels = RESTHandler::sharedInstance().corvelList();
    for (const CorvelRef& corvel : corvels) {
        if (!Readings::shared().of(*corvel)->isUpdating) {
            const auto ended = [corvel](const auto&) { Watch::shared().didRefreshByHand(*corvel); };
            refreshCorvel(corvel, Urgency::Fleet).thenOnMain(ended, ended);
        }
    }
    m_refreshControl.endRefreshing();
}

void AttentionViewController::showWatch()
{
    m_watchLabel.setText(WatchText::state());
}

void AttentionViewController::openWatch()
{
    openScene(*this, Scenes::watchView);
}

void AttentionViewController::openFilter()
{
    // The sheet, which this screen holds, may still be seen when the screen has gone.
    const QPointer<AttentionViewController> screen(this);
    AttentionFilterController::Host host{.filter = [screen] { return screen ? screen->filter() : FindingFilter(); },
                                         .setFilter =
                                             [screen](FindingFilter filter) {
                                                 if (screen) {
                                                     screen->setFilter(std::move(filter));
                                                 }
                                             },
                                         .leave =
                                             [screen] {
                                                 if (screen) {
                                                     screen->dismissSemiModalView();
                                                 }
                                             }};
    presentSemiViewController(makeController<AttentionFilterController>(std::move(host)),
                              {.pushParentBack = false, .height = filterHeight});
}

void AttentionViewController::addCorvel()
{
    if (TabBarController* const tabs = tabBarController()) {
        const auto [list, index] = rootOf<CorvelListViewController>(*tabs);
        if (list != nullptr) {
            tabs->setSelectedIndex(index);
            list->addCorvel();
        }
    }
}

AttentionViewController* showAttention(TabBarController& tabs)
{
    const auto [attention, index] = rootOf<AttentionViewController>(tabs);
    if (attention != nullptr) {
        tabs.setSelectedIndex(index);
        attention->navigationController()->popToRoot();
        attention->segmentedControl()->setSelectedSegmentIndex(static_cast<int>(AttentionViewController::Segment::Now));
    }
    return attention;
}

void showAttentionOf(const ViewController& from, const CorvelRef& corvel)
{
    if (TabBarController* const tabs = from.tabBarController()) {
        if (AttentionViewController* const attention = showAttention(*tabs)) {
            FindingFilter filter;
            filter.grouping = attention->filter().grouping;
            filter.consoles = {corvel.get()};
            attention->setFilter(std::move(filter));
        }
    }
}

void countAttention(TabBarController& tabs, int index)
{
    const auto count = [&tabs, index] {
        tabs.setBadge(index, badgeOf(tabs.titleAt(index),
                                     static_cast<int>(Attention::shared().picture()->findings.needAttention)));
    };
    new Observing(tabs, NotificationCenter::defaultCenter().addObserver("AttentionDidChange", count));
    count();
}

} // namespace lodestar
