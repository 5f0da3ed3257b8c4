// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A screen of facts. A screen that has to wait for its facts adds a spinner and a text as children.
PageScaffold {
    id: scene

    /// Replaces the controller's title; null shows the title.
    property Item titleView: null
    property BarButtonOutlet rightBarButton: null
    /// The table's name for screen readers.
    property string label: details.title

    readonly property DetailViewController details: controller as DetailViewController

    bar: NavigationBar {
        controller: scene.controller
        titleView: scene.titleView
        trailing: [
            IconButton {
                objectName: "reportButton"
                visible: scene.details.offersReport
                iconName: "report"
                text: qsTr("Service report")
                onClicked: scene.details.openReport()
            },
            OutletButton {
                outlet: scene.rightBarButton
            }
        ]
    }
    scrollView: table.flickable

    CardTable {
        id: table

        table: scene.details.tableView
        label: scene.label
        delegate: DetailDelegate {}
        focus: true
        menuShown: scene.details.rowMenu.presented
        anchors.fill: parent
        onMenuRequested: (section, row) => scene.details.presentMenu(section, row)
    }
    ActionSheet {
        outlet: scene.details.rowMenu
    }
    KeyAction {
        name: "copyValue"
        enabled: scene.visible && scene.details.semiModal === null
        onActivated: {
            const current = (table.flickable as ListView).currentItem as TableRow;
            if (current !== null) {
                scene.details.copyValue(current.section, current.row);
            }
        }
    }
}
