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

    Shortcut {
        sequences: ["Ctrl+K"]
        enabled: scene.window.feedbackHost.screen === null
        onActivated: FindOpener.openIn(scene.controller)
    }
    // Loaded when feedback is first needed, so that it does not slow the start.
    Loader {
        readonly property bool needed: scene.window.feedbackHost.needed

        function load() {
            if (needed && status === Loader.Null) {
                setSource("qrc:/Lodestar/Feedback/FeedbackLayer.qml", {"host": scene.window.feedbackHost});
            }
        }
        anchors.fill: parent
        onNeededChanged: load()
        Component.onCompleted: load()
    }
}
