// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ManagedSystem.h"
#include "Kit/Core/NavigationController.h"
#include "Tools/Screenshots/Looks.h"
#include "Tools/Screenshots/NightFleet.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <QCoreApplication>

#include <stdexcept>

namespace lodestar::scenes
{
namespace
{

/// The row that is drawn with the text; null for none.
QQuickItem* rowShowing(const SceneStage& stage, const QString& text)
{
    for (QQuickItem* item : stage.items("QQuickText")) {
        if (item->property("text") != text) {
            continue;
        }
        while (item != nullptr && !QByteArray(item->metaObject()->className()).startsWith("TableRow")) {
            item = item->parentItem();
        }
        if (item != nullptr) {
            return item;
        }
    }
    return nullptr;
}

/// Chooses the row that shows the text, as a press does. Scrolls to a row that large text has pushed out of view.
void choose(const SceneStage& stage, const QString& text)
{
    QQuickItem* row = rowShowing(stage, text);
    for (QQuickItem* const list : stage.items("QQuickListView")) {
        for (int i = 0; row == nullptr && i < list->property("count").toInt(); ++i) {
            constexpr int contain = 4; // ListView.Contain
            QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, i), Q_ARG(int, contain));
            row = rowShowing(stage, text);
        }
    }
    if (row == nullptr) {
        throw std::runtime_error("no row shows " + text.toStdString());
    }
    QMetaObject::invokeMethod(row, "accessiblePressed");
    stage.settle();
}

void openAttention(SceneStage& stage)
{
    showNight(stage, Night::Morning);
    showAttention(stage.tabs());
    stage.settle();
}

/// The systems of the night's second console, by its menu.
MSListViewController& openSystems(SceneStage& stage)
{
    showNight(stage, Night::Morning);
    stage.settle();
    choose(stage, QStringLiteral("Harbour B"));
    choose(stage, QCoreApplication::translate("lodestar::CorvelOverviewTableViewController", "Managed Systems"));
    return *qobject_cast<MSListViewController*>(stage.list().navigationController()->topViewController());
}

void openChart(SceneStage& stage)
{
    const CorvelRef corvel = demoConsole();
    const auto id = ManagedSystem::identifierAt(feedOfType(*corvel, ObjectType::ManagedSystem), 0);
    auto& performance = *stage.open<PCMViewController>(
        Scenes::pcmDataView, {.corvel = corvel, .sysName = std::string("helios-01"), .systemID = id});
    stage.waitFor([&] { return !performance.chartView()->isHidden(); });
    performance.openLargeChart();
    stage.settle(3300); // a little more than the chart takes to grow in
}

} // namespace

std::vector<Look> wideLooks()
{
    return {
        {.name = "wide-empty", .consoles = {}, .prepare = &openAttention, .lies = true, .isWide = true},
        {.name = "wide-attention",
         .consoles = {},
         .prepare =
             [](SceneStage& stage) {
                 openAttention(stage);
                 choose(stage, QStringLiteral("Northfield Recovery Site"));
             },
         .lies = true,
         .isWide = true},
        {.name = "wide-consoles",
         .consoles = {},
         .prepare =
             [](SceneStage& stage) {
                 showNight(stage, Night::Morning);
                 stage.settle();
                 choose(stage, QStringLiteral("Harbour B"));
             },
         .lies = true,
         .isWide = true},
        {.name = "wide-systems",
         .consoles = {},
         .prepare =
             [](SceneStage& stage) {
                 MSListViewController& systems = openSystems(stage);
                 choose(stage, QStringLiteral("helios-03"));
                 systems.actionSheet()->choose(0);
             },
         .lies = true,
         .isWide = true},
        {.name = "wide-partitions",
         .consoles = fleet(),
         .prepare =
             [](SceneStage& stage) {
                 stage.openList(Scenes::logicalPartitionsView, {.corvel = demoConsole(), .partitionName = {}});
                 choose(stage, QStringLiteral("mail-relay"));
             },
         .lies = true,
         .isWide = true},
        {.name = "wide-chart", .consoles = fleet(), .prepare = &openChart, .lies = true, .isWide = true},
    };
}

} // namespace lodestar::scenes
