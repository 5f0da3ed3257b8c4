// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// How far the trying of a fleet sheet is, console by console; then what can be added.
PageScaffold {
    id: scene

    readonly property FleetVerifyViewController fleet: controller as FleetVerifyViewController

    bar: NavigationBar {
        title: scene.controller.title
        leading: PlainButton {
            objectName: "leaveButton"
            text: scene.fleet.running ? qsTr("Stop") : qsTr("Cancel")
            leftPadding: 16
            rightPadding: 16
            scaleFactor: Theme.barScale
            onClicked: scene.fleet.leave()
        }
    }
    scrollView: table.flickable

    CardTable {
        id: table

        table: scene.fleet.tableView
        label: scene.fleet.title
        delegate: FleetRowDelegate {}
        topSpace: 0 // the header has it
        focus: true
        anchors.fill: parent
        lineSpace: header.height

        // Lies in the margin instead of a header: in Qt 6.4 a list makes no header of a bound component.
        FleetVerifyHeader {
            id: header

            parent: table.flickable.contentItem
            fleet: scene.fleet
            side: Theme.sideMargin(table.width, Theme.measure)
            width: table.width
            y: table.flickable.originY - height
        }
    }
    // A list that has rows from the start begins at the first of them, below the card.
    Timer {
        interval: 0
        running: true
        onTriggered: table.flickable.contentY = table.flickable.originY - header.height
    }
    Alert {
        outlet: scene.fleet.alert
    }
    Announcement {
        id: announcement
    }
    Connections {
        target: scene.fleet
        function onAnnounced() {
            announcement.say(scene.fleet.announcement);
        }
    }
}
