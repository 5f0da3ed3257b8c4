// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The changes behind one folded row.
PageScaffold {
    id: scene

    readonly property FoldedChangesViewController list: controller as FoldedChangesViewController

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
    }
}
