// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// A button that is a word, as in bars, sheets and alerts.
T.AbstractButton {
    id: button

    property color ink: Theme.accentInk
    property int size: Theme.bodySize
    property real scaleFactor: Theme.textScale

    implicitWidth: Math.max(Theme.target, label.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.target, label.implicitHeight)
    leftPadding: 12
    rightPadding: 12
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.Button
    Accessible.name: text

    contentItem: Item {
        implicitWidth: label.implicitWidth
        implicitHeight: label.implicitHeight

        Label {
            id: label

            text: button.text
            size: button.size
            scaleFactor: button.scaleFactor
            color: button.ink
            opacity: button.pressed ? 0.55 : button.hovered ? 0.8 : 1
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.ignored: true

            Behavior on opacity {
                NumberAnimation { duration: button.pressed ? Theme.pressIn : Theme.pressOut }
            }
        }
    }
    background: FocusRing {
        shown: button.visualFocus
    }
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()
}
