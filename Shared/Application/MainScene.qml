// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Application
import Lodestar.Kit
import Lodestar.Views

/// The window's content, which is the scene of the window's root controller. The window itself tells controllers that
/// they appear, so that a screen is locked before it is drawn.
SceneView {
    id: scene

    required property FeedbackWindow window

    controller: window.rootViewController
    focus: true
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    readonly property bool inFront: scene.window.feedbackHost.screen === null && scene.controller instanceof TabBarController

    KeyAction {
        name: "find"
        enabled: scene.inFront
        onActivated: FindOpener.openIn(scene.controller)
    }
    KeyAction {
        name: "help"
        enabled: scene.inFront
        onActivated: Commands.showHelp(scene.controller)
    }
    KeyAction {
        name: "commands"
        enabled: scene.inFront
        onActivated: Commands.showCommands(scene.controller)
    }
    KeyAction {
        name: "settings"
        enabled: scene.inFront
        onActivated: Commands.openSettings(scene.controller)
    }
    KeyAction {
        name: "consoles"
        enabled: scene.inFront
        onActivated: Commands.selectTab(scene.controller, 0)
    }
    KeyAction {
        name: "dashboard"
        enabled: scene.inFront
        onActivated: Commands.selectTab(scene.controller, 1)
    }
    KeyAction {
        name: "attention"
        enabled: scene.inFront
        onActivated: Commands.selectTab(scene.controller, 2)
    }
    // Loaded when feedback is first needed, so that it does not slow the start.
    LaterItem {
        wanted: scene.window.feedbackHost.needed
        source: "qrc:/Lodestar/Feedback/FeedbackLayer.qml"
        subject: scene.window.feedbackHost
        anchors.fill: parent
    }
}
