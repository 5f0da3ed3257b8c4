// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A screen of facts. One that waits for them puts up its own spinner and words as children.
PageScaffold {
    id: scene

    /// Stands in for the controller's title.
    property Item titleView: null
    property BarButtonOutlet rightBarButton: null
    /// Names the table for those who do not see the title above it.
    property string label: details.title

    readonly property DetailViewController details: controller as DetailViewController

    bar: NavigationBar {
        controller: scene.controller
        titleView: scene.titleView
        trailing: OutletButton {
            outlet: scene.rightBarButton
        }
    }
    scrollView: table.flickable

    CardTable {
        id: table

        table: scene.details.tableView
        label: scene.label
        delegate: DetailDelegate {}
        focus: true
        anchors.fill: parent
    }
}
