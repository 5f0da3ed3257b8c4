// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The findings behind one row of the Attention tab.
PageScaffold {
    id: scene

    readonly property FoldedListController list: controller as FoldedListController

    bar: NavigationBar {
        controller: scene.controller
        titleView: TitleView {
            titleOutlet: scene.list.header.titleLabel
            subtitleOutlet: scene.list.header.subtitleLabel
        }
    }
    scrollView: table.flickable

    CardTable {
        id: table

        table: scene.list.tableView
        label: scene.list.title
        delegate: FindingDelegate {}
        focus: true
        anchors.fill: parent
        onSwipeButtonTapped: (section, row) => scene.list.expectStop(row)
    }
    NoContent {
        anchors.fill: parent
        visible: scene.list.tableView.rows === 0
        picture: "attention_clear"
        text: qsTr("Nothing left to show")
    }
}
