// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A fixed menu that leads to other scenes.
PageScaffold {
    id: scene

    /// Points above the first card; and how far the content there has been scrolled up.
    property alias topSpace: table.topSpace
    readonly property real scrolledBy: table.flickable.contentY + table.topSpace

    readonly property MenuTableViewController menu: controller as MenuTableViewController

    bar: NavigationBar {
        controller: scene.controller
    }
    scrollView: table.flickable

    CardTable {
        id: table

        table: scene.menu.tableView
        label: scene.menu.title
        delegate: MenuDelegate {}
        focus: true
        anchors.fill: parent
    }
}
