// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Application
import Lodestar.Kit

/// What fills the window: whichever controller is its root. The window itself tells controllers of their appearance, so
/// that a screen is locked before it is drawn.
SceneView {
    required property FeedbackWindow window

    controller: window.rootViewController
    focus: true
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
}
