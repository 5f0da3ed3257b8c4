// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Shows how far a flickable is scrolled, at its end side, while it moves. Lay it over the flickable, not into its
/// content.
Rectangle {
    id: mark

    required property Flickable flickable
    readonly property real whole: flickable.contentHeight + flickable.topMargin + flickable.bottomMargin
    readonly property bool shown: flickable.moving && whole > flickable.height + 1
    readonly property real track: flickable.height - 4
    readonly property real passed: visible ? flickable.contentY - flickable.originY + flickable.topMargin : 0

    width: 3
    height: Math.max(24, track * flickable.height / Math.max(1, whole))
    radius: 1.5
    color: Theme.faint
    x: Theme.mirrored ? 2 : flickable.width - width - 2
    y: 2 + Math.max(0, Math.min(1, passed / Math.max(1, whole - flickable.height))) * (track - height)
    visible: opacity > 0
    opacity: shown ? 1 : 0

    Behavior on opacity {
        NumberAnimation { duration: mark.shown ? Theme.pressIn : 2 * Theme.settle }
    }
}
