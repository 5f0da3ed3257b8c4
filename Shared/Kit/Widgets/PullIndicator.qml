// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The mark that a pull uncovers.
LaterItem {
    /// Points by which the list is pulled.
    required property real overshoot
    required property bool refreshing
    /// 1 and more: letting go refreshes.
    readonly property real progress: Math.max(0, overshoot / 72)

    width: 28
    height: 28
    wanted: visible
    source: "qrc:/Lodestar/Kit/PullIndicatorMark.qml"
}
