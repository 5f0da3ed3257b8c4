// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The console list: one card of rows; without consoles, a picture and a button that adds the first one.
PageScaffold {
    id: scene

    readonly property CorvelListViewController corvels: controller as CorvelListViewController
    readonly property bool sheetUp: corvels.semiModal !== null
    readonly property SheetKeyboard keyboard: SheetKeyboard {
        host: scene.corvels
        inside: scene
    }

    bar: RootBar {
        controller: scene.controller
        trailing: [
            IconButton {
                objectName: "feedbackButton"
                iconName: "feedback"
                text: qsTr("Feedback")
                visible: !scene.corvels.feedbackHidden
                onClicked: scene.corvels.openFeedback()
            },
            IconButton {
                objectName: "settingsButton"
                iconName: "settings"
                text: qsTr("Settings")
                onClicked: scene.corvels.openSettings()
            },
            IconButton {
                objectName: "addButton"
                iconName: "add"
                text: qsTr("Add console")
                onClicked: scene.corvels.addCorvel()
            }
        ]
    }
    scrollView: table.flickable

    Shortcut {
        sequences: ["Ctrl+N"]
        enabled: scene.visible && !scene.sheetUp
        onActivated: scene.corvels.addCorvel()
    }
    Shortcut {
        sequences: ["F5", "Ctrl+R"]
        enabled: scene.visible && !scene.sheetUp
        onActivated: scene.corvels.refreshControl.pull()
    }

    CardTable {
        id: table

        table: scene.corvels.tableView
        label: scene.corvels.title
        refreshControl: scene.corvels.refreshControl
        delegate: CorvelListDelegate {
            corvels: scene.corvels
        }
        topSpace: 0
        focus: true
        anchors.fill: parent
        onSwipeButtonTapped: (section, row, index, leading) => {
            if (leading) {
                scene.corvels.openConnection(row);
            } else {
                scene.corvels.swipeTableCell(row, index);
            }
        }
        onMenuRequested: (section, row) => scene.corvels.presentMenu(row)
    }
    ActionSheet {
        outlet: scene.corvels.rowMenu
    }
    NoContent {
        anchors.fill: parent
        visible: scene.corvels.tableView.hidden
        picture: "no_data_consoles"
        text: qsTr("No consoles yet.")
        actionText: qsTr("Add Corvel")
        onAction: scene.corvels.addCorvel()
    }
}
