// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Feedback
import Lodestar.Kit

/// A report's text, line by line: a log is too long for one text item.
PageScaffold {
    id: scene

    readonly property ReportViewController report: controller as ReportViewController

    readonly property size drawn: report.picture !== null ? report.picture.pictureSize : Qt.size(0, 0)

    Keys.onEscapePressed: (event) => scene.close(event)
    Keys.onBackPressed: (event) => scene.close(event)

    function close(event: var) {
        event.accepted = report.closes;
        if (report.closes) {
            report.leave();
        }
    }

    bar: NavigationBar {
        id: navigationBar

        controller: scene.controller
        scrolled: list.contentY - list.start > 0.5
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

        IconButton {
            objectName: "closeButton"
            iconName: "close"
            text: qsTr("Close")
            visible: scene.report.closes
            anchors.left: parent.left
            anchors.leftMargin: navigationBar.side
            anchors.verticalCenter: parent.verticalCenter
            onClicked: scene.report.leave()
        }
    }

    ListView {
        id: list

        readonly property real start: originY - topMargin

        objectName: "reportLines"
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        topMargin: scene.drawn.width > 0 ? 332 : 8
        bottomMargin: Theme.groupGap
        boundsBehavior: Flickable.DragAndOvershootBounds
        model: scene.report.lines
        keyNavigationEnabled: false
        Keys.onDownPressed: contentY = Math.min(Math.max(start, originY + contentHeight + bottomMargin - height),
                                                contentY + 48)
        Keys.onUpPressed: contentY = Math.max(start, contentY - 48)
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
        Component.onCompleted: contentY = start

        FocusRing {
            parent: list
            anchors.fill: parent
            anchors.margins: 4
            shown: keyboard.visual

            KeyboardFocus {
                id: keyboard

                item: list
            }
        }
        // Lies in the margin instead of a header: in Qt 6.4 a list makes no header of a bound component.
        SketchPicture {
            parent: list.contentItem
            visible: scene.drawn.width > 0
            sketch: scene.report.picture
            enabled: false
            y: list.originY - 324
            height: 312
            width: scene.drawn.height > 0 ? height * scene.drawn.width / scene.drawn.height : 0
            anchors.horizontalCenter: parent !== null ? parent.horizontalCenter : undefined
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Picture of the screen")
        }
    }
    Alert {
        outlet: scene.report.alert
    }
}
