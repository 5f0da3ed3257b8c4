// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The button that leads to the watch, and below its picture how the watch stands.
Pressable {
    id: button

    required property LabelOutlet outlet

    text: qsTr("Watch")
    implicitWidth: Math.max(Theme.target, state.implicitWidth + 8)
    implicitHeight: Theme.target
    Accessible.role: Accessible.Button
    Accessible.name: Sentence.joined([text, outlet.text])

    HoverWash {
        anchors.fill: parent
        shown: button.hovered
    }
    FocusRing {
        anchors.fill: parent
        shown: button.visualFocus
    }
    Column {
        anchors.centerIn: parent
        opacity: button.pressed ? 0.55 : 1

        Icon {
            name: "watch"
            anchors.horizontalCenter: parent.horizontalCenter
        }
        Label {
            id: state

            text: button.outlet.text
            size: Theme.axisSize
            scaleFactor: Theme.barScale
            color: Theme.accentInk
            anchors.horizontalCenter: parent.horizontalCenter
            Accessible.ignored: true
        }
    }
}
