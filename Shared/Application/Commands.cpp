// SPDX-License-Identifier: Apache-2.0
#include "Application/Commands.h"

#include "Application/IntroView.h"
#include "Application/SettingsViewController.h"
#include "Feedback/VireoLogger.h"
#include "Kit/Core/KeyTable.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "Views/Attention/WatchViewController.h"
#include "Views/Common/Scenes.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/FleetSheet/FleetSheetViewController.h"

#include <QPointer>

#include <array>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double sheetHeight = 520;

constexpr std::array keys = {
    KeyEntry{"consoles", "Ctrl+1", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Corvels")},
    KeyEntry{"dashboard", "Ctrl+2", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Dashboard")},
    KeyEntry{"attention", "Ctrl+3", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Attention")},
};

/// The commands are those of now; without commands the sheet tells the keys.
void show(ViewController* root, std::vector<Command> (*commands)(TabBarController&))
{
    auto* const tabs = qobject_cast<TabBarController*>(root);
    if (tabs != nullptr && tabs->semiModal() == nullptr) {
        tabs->presentSemiViewController(makeController<KeySheetController>(*tabs, commands(*tabs)),
                                        {.pushParentBack = false, .height = sheetHeight});
    }
}

/// Pushes the screen on the chosen tab's stack, unless one of its kind is on top.
template <typename Controller>
void open(TabBarController& tabs, Scene<> scene)
{
    const auto* const stack = qobject_cast<NavigationController*>(tabs.controllerAt(tabs.selectedIndex()));
    if (stack != nullptr && qobject_cast<Controller*>(stack->topViewController()) == nullptr) {
        openScene(*stack->topViewController(), scene);
    }
}

/// The live actions of a place, in the table's order.
void addLive(std::vector<Command>& commands, KeyPlace place)
{
    for (const KeyEntry& entry : KeyTable::shared().entries()) {
        const QLatin1String name(entry.name);
        QObject* const action = entry.place == place ? KeyTable::shared().live(name) : nullptr;
        if (action != nullptr && name != QLatin1String("commands")) {
            commands.push_back({KeyTable::title(entry), KeyTable::keysToShow(entry), [action = QPointer(action)] {
                                    if (action) {
                                        QMetaObject::invokeMethod(action, "activated");
                                    }
                                }});
        }
    }
}

} // namespace

void Commands::addKeys()
{
    KeyTable::shared().add(keys);
}

void Commands::showHelp(ViewController* root)
{
    show(root, [](TabBarController&) { return std::vector<Command>(); });
}

void Commands::showCommands(ViewController* root)
{
    show(root, &Commands::of);
}

void Commands::openSettings(ViewController* root)
{
    if (auto* const tabs = qobject_cast<TabBarController*>(root)) {
        open<SettingsViewController>(*tabs, Scenes::settingsViewController);
    }
}

void Commands::selectTab(ViewController* root, int index)
{
    if (auto* const tabs = qobject_cast<TabBarController*>(root); tabs != nullptr && index < tabs->count()) {
        tabs->setSelectedIndex(index);
    }
}

std::vector<Command> Commands::of(TabBarController& tabs)
{
    std::vector<Command> commands;
    addLive(commands, KeyPlace::Screen);
    addLive(commands, KeyPlace::Everywhere);
    const auto add = [&](const QString& title, void (*run)(TabBarController&)) {
        commands.push_back({title, {}, [tabs = QPointer(&tabs), run] {
                                if (tabs) {
                                    run(*tabs);
                                }
                            }});
    };
    add(tr("Watch"), [](TabBarController& on) { open<WatchViewController>(on, Scenes::watchView); });
    add(tr("Fleet sheet"), [](TabBarController& on) { open<FleetSheetViewController>(on, Scenes::fleetSheetView); });
    add(tr("Intro tour"), [](TabBarController& on) { IntroView::showIntroViewInView(on, {}); });
    if (!CorvelListViewController::hasDemo()) {
        add(tr("Bring back the demo"), &bringBackDemo);
    }
    // The window itself takes the keys for it, over sheets and the passcode screen, too.
    const KeyEntry* const feedback = KeyTable::shared().find(QStringLiteral("feedback"));
    add(KeyTable::title(*feedback), [](TabBarController&) { VireoLogger::feedback(); });
    commands.back().keys = KeyTable::keysToShow(*feedback);
    return commands;
}

} // namespace lodestar
