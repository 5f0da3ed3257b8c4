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
        id: rootBar

        controller: scene.controller
        onTitleHeld: share.offer()
        trailing: [
            ListShareButton {
                id: share

                share: scene.corvels.share
                offered: scene.visible && !scene.sheetUp && table.table.rows > 0
                hasRoom: rootBar.fits(scene.corvels.feedbackHidden ? 4 : 5)
            },
            IconButton {
                objectName: "feedbackButton"
                iconName: "feedback"
                text: qsTr("Feedback")
                action: "feedback"
                visible: !scene.corvels.feedbackHidden
                onClicked: scene.corvels.openFeedback()
            },
            FindButton {
                screen: scene.controller
            },
            IconButton {
                objectName: "settingsButton"
                iconName: "settings"
                text: qsTr("Settings")
                action: "settings"
                onClicked: scene.corvels.openSettings()
            },
            IconButton {
                objectName: "addButton"
                iconName: "add"
                text: qsTr("Add console")
                action: "add"
                onClicked: scene.corvels.addCorvel()
            }
        ]
    }
    scrollView: table.flickable

    KeyAction {
        name: "add"
        enabled: scene.visible && !scene.sheetUp
        onActivated: scene.corvels.addCorvel()
    }
    KeyAction {
        name: "refresh"
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
        menuShown: scene.corvels.rowMenu.presented
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
        endSpace: sheetCard.height + Theme.groupGap + (steps.visible ? steps.height + 40 + Theme.groupGap : 0)
    }
    // Scrolls with the list and is none of its rows, so that it comes after them for the keyboard and for readers.
    GroupCard {
        id: sheetCard

        visible: table.visible
        x: Theme.sideMargin(table.width, Theme.measure)
        y: table.flickable.originY + table.flickable.contentHeight + Theme.groupGap - table.flickable.contentY
        width: table.width - 2 * x

        MenuRow {
            objectName: "fleetSheetRow"
            iconName: "fleet_sheet"
            text: qsTr("Fleet Sheet")
            detail: scene.corvels.countLabel.text
            onClicked: scene.corvels.openFleetSheet()
        }
    }
    // Likewise, while there is only the demonstration console.
    FirstSteps {
        id: steps

        visible: table.visible && !scene.corvels.nextSteps.hidden
        corvels: scene.corvels
        headline: qsTr("No console of your own yet.")
        x: Math.round((table.width - width) / 2)
        y: sheetCard.y + sheetCard.height + 40
        width: Math.min(280 * Theme.textScale, table.width - 80)
    }
    GridMenu {
        outlet: scene.corvels.rowMenu
    }
    // Made on first use, so that it does not slow the start of those who have consoles.
    LaterItem {
        visible: scene.corvels.tableView.hidden
        wanted: scene.corvels.tableView.hidden
        source: "qrc:/Lodestar/Views/FirstRun.qml"
        subject: scene.corvels
        anchors.fill: parent
    }
}
