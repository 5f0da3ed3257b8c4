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
        trailing: ListShareButton {
            share: scene.list.share
            offered: scene.visible && table.table.rows > 0
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
        picture: "no_data_changes" // not the calm one: what is over here says nothing of the rest
        text: qsTr("Nothing left to show")
    }
}
