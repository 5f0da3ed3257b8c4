// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Application
import Lodestar.Kit

/// What fills the window: whichever controller is its root. The window itself tells controllers of their appearance, so
/// that a screen is locked before it is drawn.
SceneView {
    id: scene

    required property FeedbackWindow window

    controller: window.rootViewController
    focus: true
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    // Made when feedback is first asked for: it has no part in the start.
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
