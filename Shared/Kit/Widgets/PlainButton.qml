// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A button that shows only a word, as in bars, sheets and alerts.
Pressable {
    id: button

    property color ink: Theme.accentInk
    property color hoverInk: Theme.hoverInk(ink)
    property int size: Theme.bodySize
    property real scaleFactor: Theme.textScale
    property real leftPadding: 12
    property real rightPadding: 12
    /// Lets a long text wrap onto several lines.
    property bool wraps: false
    readonly property real wordWidth: label.implicitWidth

    implicitWidth: Math.max(Theme.target, wordWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.target, label.implicitHeight + (wraps ? 16 : 0))
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.Button
    Accessible.name: text

    HoverWash {
        anchors.fill: parent
        shown: button.hovered && button.enabled
    }
    FocusRing {
        anchors.fill: parent
        shown: button.visualFocus
    }
    Label {
        id: label

        text: button.text
        size: button.size
        scaleFactor: button.scaleFactor
        color: button.hovered ? button.hoverInk : button.ink
        opacity: button.pressed ? 0.55 : 1
        anchors.verticalCenter: parent.verticalCenter
        x: button.leftPadding
        width: parent.width - button.leftPadding - button.rightPadding
        horizontalAlignment: Text.AlignHCenter
        elide: button.wraps ? Text.ElideNone : Text.ElideRight
        wrapMode: button.wraps ? Text.Wrap : Text.NoWrap
        Accessible.ignored: true

        Behavior on opacity {
            NumberAnimation { duration: button.pressed ? Theme.pressIn : Theme.pressOut }
        }
    }
}
