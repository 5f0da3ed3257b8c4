// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Registry.h"
#include "Fleet/Watch.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/MessageService.h"
#include "Tools/Screenshots/Looks.h"
#include "Tools/Screenshots/NightFleet.h"
#include "Views/Attention/AttentionFilterController.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/Attention/EventOrderViewController.h"

namespace lodestar::scenes
{
namespace
{

using Segment = AttentionViewController::Segment;
using Prepare = std::function<void(SceneStage&)>;

AttentionViewController& openAttention(SceneStage& stage, Segment segment = Segment::Now)
{
    AttentionViewController& attention = *showAttention(stage.tabs());
    attention.segmentedControl()->setSelectedSegmentIndex(static_cast<int>(segment));
    stage.settle();
    return attention;
}

Prepare nowOf(Night night)
{
    return [night](SceneStage& stage) {
        showNight(stage, night);
        openAttention(stage);
    };
}

Prepare atEnd(Prepare prepare)
{
    return [prepare = std::move(prepare)](SceneStage& stage) {
        prepare(stage);
        stage.settle();
        for (QQuickItem* list : stage.items("QQuickListView")) {
            QMetaObject::invokeMethod(list, "positionViewAtEnd");
            list->setProperty("contentY",
                              list->property("contentY").toDouble() + list->property("bottomMargin").toDouble());
        }
        for (QQuickItem* page : stage.items("ScrollPage")) {
            page->setProperty("contentY", qMax(0.0, page->property("contentHeight").toDouble() - page->height()));
        }
    };
}

FindingFilter systemsAndTheirs()
{
    FindingFilter filter;
    filter.grouping = FindingFilter::Grouping::Console;
    filter.kinds = {FindingSubject::System, FindingSubject::IOServer, FindingSubject::Partition};
    return filter;
}

void filter(SceneStage& stage)
{
    showNight(stage, Night::Morning);
    openAttention(stage).setFilter(systemsAndTheirs());
}

void openFilter(SceneStage& stage)
{
    filter(stage);
    showAttention(stage.tabs())->openFilter();
}

void groupByConsole(SceneStage& stage)
{
    showNight(stage, Night::Morning);
    FindingFilter grouping;
    grouping.grouping = FindingFilter::Grouping::Console;
    openAttention(stage).setFilter(grouping);
}

std::vector<Look> nowLooks()
{
    return {
        {"attention", {}, nowOf(Night::Morning), true},
        {"attention-end", {}, atEnd(nowOf(Night::Morning))},
        {"attention-clear", {}, nowOf(Night::Clear), true},
        {"attention-unknown", {}, nowOf(Night::Unknown), true},
        {"attention-updating", {}, nowOf(Night::Updating), true},
        {"attention-by-console", {}, groupByConsole},
        {"attention-filter", {}, openFilter, true, true},
        {"attention-filtered", {}, filter, true},
        {"attention-many",
         {},
         [](SceneStage& stage) {
             showManyConsoles(stage);
             openAttention(stage);
         },
         true},
        {"attention-empty",
         {},
         [](SceneStage& stage) {
             showNoConsoles(stage);
             openAttention(stage);
         }},
    };
}

Prepare changes(Night night)
{
    return [night](SceneStage& stage) {
        showNight(stage, night);
        openAttention(stage, Segment::Changes);
    };
}

Prepare events(EventChoice choice = wholeList)
{
    return [choice = std::move(choice)](SceneStage& stage) {
        showNight(stage, Night::Morning);
        openAttention(stage, Segment::Events).events()->setChoice(choice);
    };
}

std::vector<Look> segmentLooks()
{
    const EventChoice byCode{.order = EventOrder::ByReferenceCode, .openOnly = true};
    return {
        {"changes", {}, changes(Night::Morning), true},
        {"changes-end", {}, atEnd(changes(Night::Morning))},
        {"changes-filtered",
         {},
         [](SceneStage& stage) {
             changes(Night::Morning)(stage);
             showAttention(stage.tabs())->setFilter(systemsAndTheirs());
             openAttention(stage, Segment::Changes);
         }},
        {"changes-empty",
         {},
         [](SceneStage& stage) {
             showNoConsoles(stage);
             openAttention(stage, Segment::Changes);
         }},
        {"triage", {}, events(), true},
        {"triage-by-code", {}, events(byCode), true},
        {"triage-search",
         {},
         [](SceneStage& stage) {
             showNight(stage, Night::Morning);
             FleetEventsViewController& list = *openAttention(stage, Segment::Events).events();
             list.search();
             list.searchBar()->setText("104");
         }},
        {"triage-search-code",
         {},
         [](SceneStage& stage) {
             showNight(stage, Night::Morning);
             FleetEventsViewController& list = *openAttention(stage, Segment::Events).events();
             list.search();
             list.searchBar()->setText("x417");
         },
         true},
        {"triage-menu",
         {},
         [byCode](SceneStage& stage) {
             events(byCode)(stage);
             openAttention(stage, Segment::Events).events()->showOrder();
         },
         true},
    };
}

/// A system that can, or cannot, show messages; it shows none.
class StillMessages final : public MessageService
{
public:
    explicit StillMessages(bool available) : m_available(available) {}
    bool isAvailable() const override { return m_available; }
    void show(const Message& /*message*/) override {}
    void setTapped(std::function<void()> /*tapped*/) override {}
    void setAvailabilityChanged(std::function<void()> /*changed*/) override {}

private:
    bool m_available;
};

/// The watch is never started here, so nothing is read behind the pictures.
Prepare watch(bool on)
{
    return [on](SceneStage& stage) {
        showNight(stage, Night::Morning);
        MessageService::install(std::make_unique<StillMessages>(on));
        WatchSettings settings;
        settings.on = on;
        settings.quiet = on;
        settings.newEvents = on ? WatchSettings::NewEvents::OpenCallHome : WatchSettings::NewEvents::None;
        Watch::shared().setSettings(settings);
        openAttention(stage).openWatch();
    };
}

} // namespace

std::vector<Look> attentionLooks()
{
    std::vector<Look> looks = nowLooks();
    for (Look& look : segmentLooks()) {
        looks.push_back(std::move(look));
    }
    looks.push_back({"watch", {}, watch(true), true, true});
    looks.push_back({"watch-end", {}, atEnd(watch(true))});
    looks.push_back({"watch-off", {}, watch(false)});
    return looks;
}

} // namespace lodestar::scenes
