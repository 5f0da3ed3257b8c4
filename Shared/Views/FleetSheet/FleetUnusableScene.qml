// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The rows of a sheet that cannot be used.
PageScaffold {
    id: scene

    readonly property FleetUnusableViewController list: controller as FleetUnusableViewController

    bar: NavigationBar {
        controller: scene.controller
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
        delegate: FleetRowDelegate {}
        focus: true
        anchors.fill: parent
    }
}
