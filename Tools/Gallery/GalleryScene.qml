// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A list screen, built as the application's list screens are.
PageScaffold {
    id: scene

    required property var controller

    scrollView: table.flickable
    bar: RootBar {
        title: scene.controller.title
        trailing: [
            IconButton {
                iconName: "settings"
                text: "Settings"
            },
            IconButton {
                iconName: "add"
                text: "Add"
            }
        ]
    }

    CardTable {
        id: table

        objectName: "table"
        anchors.fill: parent
        topSpace: 0
        table: scene.controller.tableView
        label: "Systems"
        refreshControl: scene.controller.refreshControl
        delegate: GalleryRow {}
        onSwipeButtonTapped: (section, row, index, leading) => scene.controller.swipeTapped(section, row, index, leading)
    }
    Alert {
        outlet: scene.controller.alert
    }
    ActionSheet {
        outlet: scene.controller.actions
    }
    GridMenu {
        outlet: scene.controller.grid
    }
}
