// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/KeySheetController.h"

namespace lodestar
{

/// Commands and keys for QML and for the sheet that lists them. A root other than the main interface, as the passcode
/// screen is, has none: the functions do nothing then. Main thread.
class Commands : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;
    Q_INVOKABLE static void showHelp(lodestar::ViewController* root);
    Q_INVOKABLE static void showCommands(lodestar::ViewController* root);
    Q_INVOKABLE static void openSettings(lodestar::ViewController* root);
    Q_INVOKABLE static void selectTab(lodestar::ViewController* root, int index);

    /// Those of the screen on top first.
    static std::vector<Command> of(TabBarController& tabs);
    /// Tells the key table of the main interface's own keys.
    static void addKeys();
};

} // namespace lodestar
