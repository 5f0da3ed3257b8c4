// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Feedback
import Lodestar.Kit

/// A report to be read, line by line: a log is too long for one text.
PageScaffold {
    id: scene

    readonly property ReportViewController report: controller as ReportViewController

    scrollView: list

    bar: NavigationBar {
        controller: scene.controller
        trailing: [
            IconButton {
                objectName: "exportButton"
                iconName: "share"
                text: qsTr("Export")
                visible: scene.report.kept
                onClicked: scene.report.exportReport()
            },
            IconButton {
                objectName: "deleteButton"
                iconName: "delete"
                text: qsTr("Delete")
                visible: scene.report.kept
                onClicked: scene.report.deleteReport()
            },
            PlainButton {
                objectName: "actionButton"
                text: scene.report.actionTitle
                scaleFactor: Theme.barScale
                visible: text !== ""
                onClicked: scene.report.act()
            }
        ]
    }

    ListView {
        id: list

        objectName: "reportLines"
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        bottomMargin: Theme.groupGap
        boundsBehavior: Flickable.DragAndOvershootBounds
        model: scene.report.lines
        keyNavigationEnabled: false
        Keys.onDownPressed: contentY = Math.min(Math.max(originY, originY + contentHeight - height), contentY + 48)
        Keys.onUpPressed: contentY = Math.max(originY, contentY - 48)
        header: Item {
            readonly property size drawn: scene.report.picture !== null ? scene.report.picture.pictureSize : Qt.size(0, 0)

            width: list.width
            height: drawn.width > 0 ? 332 : 8

            SketchView {
                visible: parent.drawn.width > 0
                sketch: scene.report.picture
                enabled: false
                y: 8
                height: 312
                width: parent.drawn.height > 0 ? height * parent.drawn.width / parent.drawn.height : 0
                anchors.horizontalCenter: parent.horizontalCenter
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Picture of the screen")
            }
        }
        delegate: Label {
            required property string modelData

            text: modelData
            size: Theme.captionSize
            color: Theme.ink2
            wrapMode: Text.WrapAnywhere
            x: scene.sideMargin + 8
            width: list.width - 2 * x
            Accessible.role: Accessible.StaticText
            Accessible.name: modelData
        }
    }
    Alert {
        outlet: scene.report.alert
    }
}
