// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Feedback
import Lodestar.Kit

/// The reports on this device, one row each.
PageScaffold {
    id: scene

    readonly property ReportListViewController reports: controller as ReportListViewController

    scrollView: page
    bar: NavigationBar {
        controller: scene.controller
    }

    ScrollPage {
        id: page

        GroupCard {
            visible: scene.reports.rows.length > 0
            width: parent.width

            Repeater {
                model: scene.reports.rows

                MenuRow {
                    required property int index
                    required property reportRow modelData

                    text: modelData.text
                    detail: modelData.time
                    onClicked: scene.reports.open(index)
                }
            }
        }
    }
    NoContent {
        anchors.fill: parent
        visible: scene.reports.rows.length === 0
        picture: "feedback"
        text: qsTr("No reports on this device.")
    }
}
