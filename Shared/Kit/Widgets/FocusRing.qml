// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The inner ring that shows which control has the keyboard focus.
LaterItem {
    property bool shown: false
    property real radius: Theme.cardRadius
    property color color: Theme.accentInk

    visible: shown
    wanted: shown
    source: "qrc:/Lodestar/Kit/FocusRingLine.qml"
}
