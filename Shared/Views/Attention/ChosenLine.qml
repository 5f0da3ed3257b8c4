// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Says above a list that not everything is shown, and leads out of it.
Item {
    id: line

    property string text
    property string actionText: qsTr("Show all")
    signal action()

    readonly property real side: Theme.sideMargin(width, Theme.measure)

    implicitHeight: Math.max(words.height + 12, button.height)

    Label {
        id: words

        text: line.text
        size: Theme.captionSize
        color: Theme.ink2
        anchors.left: parent.left
        anchors.leftMargin: line.side + Theme.rowStart
        anchors.right: button.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    PlainButton {
        id: button

        text: line.actionText
        size: Theme.stateSize
        leftPadding: 8
        rightPadding: 8
        anchors.right: parent.right
        anchors.rightMargin: line.side
        anchors.verticalCenter: parent.verticalCenter
        onClicked: line.action()
    }
}
