// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// What lies behind a control's word or picture while the pointer is over it, on whatever ground the control stands.
LaterItem {
    property bool shown: false
    property real radius: Theme.cardRadius
    property color color: Theme.wash

    wanted: shown
    source: "qrc:/Lodestar/Kit/HoverWashPlane.qml"
}
