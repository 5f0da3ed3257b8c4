// SPDX-License-Identifier: Apache-2.0
#include "Application/Commands.h"
#include "Kit/Core/KeyTable.h"
#include "Tools/Screenshots/Looks.h"

#include <QMouseEvent>

namespace lodestar::scenes
{
namespace
{

/// Stands for the actions that the window itself has, which the stage's window has not.
void offerActionsOfTheWindow(SceneStage& stage)
{
    Commands::addKeys();
    for (const KeyEntry& entry : KeyTable::shared().entries()) {
        const QLatin1String name(entry.name);
        if (entry.place == KeyPlace::Everywhere && !name.isEmpty() && KeyTable::shared().live(name) == nullptr) {
            auto* const action = new QObject(&stage.window());
            action->setProperty("name", name);
            action->setProperty("enabled", name != QLatin1String("back") && name != QLatin1String("feedback"));
            KeyTable::shared().offer(action);
        }
    }
}

void moveMouse(SceneStage& stage, QPointF to)
{
    QMouseEvent move(QEvent::MouseMove, to, to, stage.window().mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&stage.window(), &move);
}

void press(SceneStage& stage, Qt::Key key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&stage.window(), &down);
}

QPointF centerOf(const QQuickItem& item)
{
    return item.mapToScene({item.width() / 2, item.height() / 2});
}

} // namespace

std::vector<Look> keyLooks()
{
    return {
        {"keyboard-help", fleet(),
         [](SceneStage& stage) {
             offerActionsOfTheWindow(stage);
             Commands::showHelp(&stage.tabs());
             stage.settle();
         },
         true, true},
        {"commands", fleet(),
         [](SceneStage& stage) {
             offerActionsOfTheWindow(stage);
             Commands::showCommands(&stage.tabs());
             stage.settle();
             press(stage, Qt::Key_Down);
         },
         true},
        {"consoles-row-hovered", fleet(),
         [](SceneStage& stage) {
             moveMouse(stage, centerOf(*stage.items(QStringLiteral("TableRow")).at(1)));
             stage.settle(200);
         },
         true},
        {"consoles-button-hovered", fleet(),
         [](SceneStage& stage) {
             moveMouse(stage, centerOf(*stage.item("addButton")));
             stage.settle(900);
         },
         true},
        {"consoles-focused", fleet(), [](SceneStage& stage) { press(stage, Qt::Key_Down); }, true},
        {"consoles-demo-alone",
         {},
         [](SceneStage& stage) {
             stage.list().lookAtDemo();
             stage.settle();
         },
         true},
    };
}

} // namespace lodestar::scenes
