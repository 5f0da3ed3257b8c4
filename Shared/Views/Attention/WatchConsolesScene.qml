// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The consoles, those that are watched with a tick.
PageScaffold {
    id: scene

    readonly property WatchConsolesViewController consoles: controller as WatchConsolesViewController

    bar: NavigationBar {
        controller: scene.controller
    }
    scrollView: table.flickable

    CardTable {
        id: table

        table: scene.consoles.tableView
        label: scene.consoles.title
        delegate: WatchConsoleDelegate {}
        focus: true
        anchors.fill: parent
    }
}
