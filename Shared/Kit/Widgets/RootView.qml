// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// What a window shows: any controller, which appears with this item and disappears with it or when another takes its
/// place.
SceneView {
    reportsAppearance: true
    focus: true
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
}
