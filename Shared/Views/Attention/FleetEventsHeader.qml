// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// What stands above the events of all consoles: the bars of new ones, and what was chosen, if anything.
Column {
    id: header

    required property FleetEventsViewController controller
    required property AttentionViewController attention
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
    ChosenLine {
        visible: header.chosen
        text: header.controller.choiceText
        actionText: qsTr("Reset")
        width: header.width
        onAction: header.attention.showAllEvents()
    }
}
