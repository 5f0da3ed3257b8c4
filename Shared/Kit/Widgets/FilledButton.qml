// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The button for the one main action of a screen.
Pressable {
    id: button

    /// Whether the button looks pressed.
    property bool down: pressed

    implicitWidth: label.implicitWidth + 48
    implicitHeight: Math.max(48, label.implicitHeight + 20)
    Accessible.role: Accessible.Button
    Accessible.name: text

    Rectangle {
        anchors.fill: parent
        radius: Theme.cardRadius
        opacity: button.enabled ? 1 : 0.4
        color: button.down ? Qt.darker(Theme.fill, 1.163) : button.hovered ? Qt.darker(Theme.fill, 1.075) : Theme.fill

        Behavior on color {
            ColorAnimation { duration: button.down ? Theme.pressIn : Theme.pressOut }
        }
        FocusRing {
            anchors.fill: parent
            anchors.margins: 2
            radius: Theme.cardRadius - 2
            color: Theme.fillInk
            shown: button.visualFocus
        }
    }
    Label {
        id: label

        text: button.text
        // The same colour as if the whole button were drawn at 40 % on a card.
        color: button.enabled ? Theme.fillInk : Qt.tint(Theme.card, Qt.rgba(Theme.fillInk.r, Theme.fillInk.g, Theme.fillInk.b, 0.4))
        anchors.centerIn: parent
        width: parent.width - 24
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
