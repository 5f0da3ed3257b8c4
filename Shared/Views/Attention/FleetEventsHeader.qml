// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// What stands above the events of all consoles: the bars of new ones, and what was chosen, if anything.
Column {
    id: header

    required property FleetEventsViewController controller
    readonly property real sideMargin: Theme.sideMargin(width, Theme.measure)
    readonly property bool chosen: controller.choiceText !== ""

    bottomPadding: chosen ? 0 : 12

    EventBars {
        visible: !header.controller.bars.hidden
        bars: header.controller.bars
        width: header.width
        sideMargin: header.sideMargin
        space: 0
    }
    Item {
        visible: header.chosen
        x: header.sideMargin
        width: header.width - 2 * x
        height: Math.max(words.height + 12, resetButton.height)

        Label {
            id: words

            text: header.controller.choiceText
            size: Theme.captionSize
            color: Theme.ink2
            anchors.left: parent.left
            anchors.leftMargin: Theme.rowStart
            anchors.right: resetButton.left
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.Wrap
        }
        PlainButton {
            id: resetButton

            text: qsTr("Reset")
            size: Theme.stateSize
            leftPadding: 8
            rightPadding: 8
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            onClicked: header.controller.resetChoice()
        }
    }
}
