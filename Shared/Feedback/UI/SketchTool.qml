// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A button among the drawing tools; shows a drawing or a disc of colour.
Pressable {
    id: tool

    property string iconName
    property color disc: "transparent"
    property bool chosen: false

    implicitHeight: Theme.target
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: chosen

    Rectangle {
        anchors.fill: parent
        radius: Theme.segmentRadius
        color: tool.chosen && tool.iconName !== "" ? Theme.well : tool.pressed ? Theme.pressed
                                                                              : tool.hovered ? Theme.hovered : "transparent"

        FocusRing {
            anchors.fill: parent
            radius: Theme.segmentRadius
            shown: tool.visualFocus
        }
    }
    Icon {
        visible: tool.iconName !== ""
        name: tool.iconName
        color: tool.chosen ? Theme.accentInk : Theme.ink2
        anchors.centerIn: parent
    }
    Rectangle {
        visible: tool.iconName === "" && tool.chosen
        anchors.centerIn: parent
        width: 30
        height: 30
        radius: 15
        color: "transparent"
        border.width: 2
        border.color: Theme.ink2
    }
    Rectangle {
        visible: tool.iconName === ""
        anchors.centerIn: parent
        width: 22
        height: 22
        radius: 11
        color: tool.disc
        border.width: 1
        border.color: Theme.dark ? "#4DFFFFFF" : "#33000000"
    }
}
