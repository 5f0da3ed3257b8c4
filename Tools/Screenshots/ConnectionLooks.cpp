// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Registry.h"
#include "Fleet/Watch.h"
#include "Tools/Screenshots/Looks.h"
#include "Tools/Screenshots/NightFleet.h"

namespace lodestar::scenes
{
namespace
{

using Prepare = std::function<void(SceneStage&)>;

Prepare connectionOf(int row)
{
    return [row](SceneStage& stage) {
        showNight(stage, Night::Morning);
        stage.open(Scenes::connectionView, corvelAtRow(row));
    };
}

/// The screen's page, moved to its end.
Prepare atEnd(Prepare prepare)
{
    return [prepare = std::move(prepare)](SceneStage& stage) {
        prepare(stage);
        stage.settle();
        for (const char* type : {"QQuickListView", "ScrollPage"}) {
            for (QQuickItem* page : stage.items(type)) {
                page->setProperty("contentY", qMax(0.0, page->property("contentHeight").toDouble() - page->height()));
            }
        }
    };
}

void openDashboard(SceneStage& stage)
{
    showNight(stage, Night::Morning);
    stage.showDashboard();
    stage.waitFor([&] { return !stage.dashboard().corvelOnlineCount()->isHidden(); });
    stage.settle(1900);
}

/// The dashboard while the watch is on, which says when it reads again.
void openWatchedDashboard(SceneStage& stage)
{
    showNight(stage, Night::Morning);
    WatchSettings settings;
    settings.on = true;
    Watch::shared().setSettings(settings);
    Watch::shared().start();
    stage.showDashboard();
    stage.waitFor([&] { return !stage.dashboard().corvelOnlineCount()->isHidden(); });
    stage.settle(1900);
    Watch::shared().stop(); // nothing is read behind the pictures; what is written stays until the clock ticks
}

} // namespace

std::vector<Look> connectionLooks()
{
    const auto consoles = [](SceneStage& stage) { showNight(stage, Night::Morning); };
    const auto swiped = [](SceneStage& stage) {
        showNight(stage, Night::Morning);
        stage.settle();
        for (QQuickItem* place : stage.items(QStringLiteral("TableRow"))) {
            if (place->property("index").toInt() == 4) {
                QMetaObject::invokeMethod(place->property("swipe").value<QQuickItem*>(), "open", Q_ARG(bool, true));
            }
        }
    };
    const auto menu = [](SceneStage& stage) {
        showNight(stage, Night::Morning);
        stage.settle();
        stage.list().presentMenu(1);
        pressRow(stage, 1);
    };
    return {
        {"connection", {}, connectionOf(1), true},
        {"connection-end", {}, atEnd(connectionOf(1))},
        {"connection-partial", {}, connectionOf(2), true},
        {"connection-partial-end", {}, atEnd(connectionOf(2))},
        {"connection-offline", {}, connectionOf(3), true},
        {"connection-offline-end", {}, atEnd(connectionOf(3))},
        {"consoles-age", {}, consoles, true},
        {"consoles-age-swiped", {}, swiped, true},
        {"consoles-age-old", {}, [](SceneStage& stage) { showNight(stage, Night::Old); }},
        {"consoles-menu", {}, menu, true},
        {"dashboard-age", {}, openDashboard, true},
        {"dashboard-age-end", {}, atEnd(openDashboard)},
        {"dashboard-age-watched", {}, openWatchedDashboard},
        {"list-age",
         {},
         [](SceneStage& stage) {
             showNight(stage, Night::Old);
             stage.openList(Scenes::managedSystemsView, corvelAtRow(1));
         },
         true},
        {"list-age-missing",
         {},
         [](SceneStage& stage) {
             showNight(stage, Night::Morning);
             stage.openList(Scenes::logicalPartitionsView, {.corvel = corvelAtRow(2), .partitionName = {}});
         }},
    };
}

} // namespace lodestar::scenes
