// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The segment Changes: bars of 30 days over the changes by day, as far as the tab's filter shows them. A bar leads to
/// its day.
FocusScope {
    id: content

    required property ChangesViewController controller
    required property AttentionViewController attention
    readonly property Flickable scrollView: table.flickable

    CardTable {
        id: table

        table: content.controller.tableView
        label: content.controller.title
        delegate: FindingDelegate {}
        refreshControl: content.attention.refreshControl
        topSpace: 0
        visible: content.controller.emptyText === ""
        focus: true
        anchors.fill: parent
        lineSpace: header.height

        // Lies in the margin instead of a header: in Qt 6.4 a list makes no header of a bound component.
        Column {
            id: header

            parent: table.flickable.contentItem
            width: table.width
            y: table.flickable.originY - height

            ChangesCard {
                bars: content.controller.bars
                sideMargin: Theme.sideMargin(width, Theme.measure)
                width: parent.width
            }
            ChosenLine {
                visible: content.controller.filterText !== ""
                text: content.controller.filterText
                width: parent.width
                onAction: content.attention.showAll()
            }
        }
    }
    Connections {
        target: content.controller
        function onScrollRequested(index: int) {
            (table.flickable as ListView).positionViewAtIndex(index, ListView.Beginning);
        }
    }
    NoContent {
        anchors.fill: parent
        visible: content.controller.emptyText !== ""
        picture: "no_data_changes"
        text: content.controller.emptyText
        actionText: content.controller.filterText !== "" ? qsTr("Show all") : ""
        onAction: content.attention.showAll()
    }
}
