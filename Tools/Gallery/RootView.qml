// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Shows the controller of a window. The controller appears with this item; it disappears with this item or when
/// another controller takes its place.
SceneView {
    reportsAppearance: true
    focus: true
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
}
