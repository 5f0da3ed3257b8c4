// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The button that leads to the sheet Show; a dot tells that not everything is shown.
IconButton {
    id: button

    required property bool filtered

    iconName: "filter"
    text: filtered ? qsTr("Show, filtered") : qsTr("Show")

    Rectangle {
        visible: button.filtered
        x: Theme.mirrored ? 6 : 26
        y: 8
        width: 12
        height: 12
        radius: 6
        color: Theme.ground

        Rectangle {
            anchors.centerIn: parent
            width: 8
            height: 8
            radius: 4
            color: Theme.accent
        }
    }
}
