// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The visible part of a NoContent.
Item {
    id: body

    required property NoContent subject

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -30
        width: Math.min(280 * Theme.textScale, parent.width - 80)

        Icon {
            name: body.subject.imageOutlet !== null ? body.subject.imageOutlet.imageName : body.subject.picture
            size: 96
            color: Theme.ink3
            anchors.horizontalCenter: parent.horizontalCenter
        }
        Item {
            width: 1
            height: 20
        }
        Label {
            visible: text !== ""
            text: body.subject.headline
            width: parent.width
            bottomPadding: 4 - drop
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            text: body.subject.lines
            size: Theme.stateSize
            color: Theme.ink2
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        PlainButton {
            visible: text !== ""
            text: body.subject.actionText
            anchors.horizontalCenter: parent.horizontalCenter
            onClicked: body.subject.action()
        }
    }
}
