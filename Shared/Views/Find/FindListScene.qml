// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// All things of a kind that a text finds.
PageScaffold {
    id: scene

    readonly property FindListController list: controller as FindListController

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
        delegate: FindDelegate {}
        focus: true
        anchors.fill: parent
    }
    NoContent {
        anchors.fill: parent
        picture: "no_data_find"
        headlineOutlet: scene.list.noDataHeadline
        labelOutlet: scene.list.noDataLabel
    }
}
