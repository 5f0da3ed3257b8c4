// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Shown in place of the window's content; looks as the passcode screen does when it opens.
ModalLayer {
    anchors.fill: parent
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Lodestar")

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }
    Icon {
        anchors.centerIn: parent
        name: "app_icon"
        size: 96
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: (wheel) => wheel.accepted = true
    }
}
