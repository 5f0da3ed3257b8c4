// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The sheet Service Report: the exact text in a box that scrolls, and what can be done with it. Where the box would be
/// too low to read in, it is as high as its text, and the whole sheet scrolls.
SheetContent {
    id: scene

    required property ViewController controller
    readonly property ServiceReportController report: controller as ServiceReportController
    readonly property real side: 20
    readonly property real lowest: 160
    readonly property real fixedHeight: segments.y + segments.height + 12 + choices.height
    readonly property bool scrollsWhole: height - fixedHeight < lowest

    saveText: ""
    onCancelled: report.cancel()

    component Part: Label {
        size: Theme.captionSize
        width: parent !== null ? parent.width : 0
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    Flickable {
        id: whole

        anchors.fill: parent
        contentHeight: scene.scrollsWhole ? scene.fixedHeight + box.height : height
        interactive: scene.scrollsWhole
        boundsBehavior: Flickable.StopAtBounds

        SegmentedControl {
            id: segments

            label: qsTr("Form of the report")
            titles: [qsTr("Text"), qsTr("Markdown")]
            currentIndex: scene.report.markdown ? 1 : 0
            x: scene.side
            y: 12
            width: parent.width - 2 * x
            onActivated: (index) => scene.report.markdown = index === 1
        }
        Rectangle {
            id: box

            x: scene.side
            y: segments.y + segments.height + 12
            width: parent.width - 2 * x
            height: scene.scrollsWhole ? texts.height + 2 * texts.y : scene.height - scene.fixedHeight
            radius: Theme.cardRadius
            color: Theme.ground
            border.width: 1 / Screen.devicePixelRatio
            border.color: Theme.hairline

            Flickable {
                id: page

                readonly property string spoken: scene.report.text

                function scrollBy(points: real) {
                    const moved = scene.scrollsWhole ? whole : page;
                    moved.contentY = Math.max(0, Math.min(moved.contentHeight - moved.height, moved.contentY + points));
                }

                anchors.fill: parent
                anchors.margins: 1
                clip: true
                contentHeight: texts.height + 2 * texts.y
                interactive: !scene.scrollsWhole
                boundsBehavior: Flickable.StopAtBounds
                activeFocusOnTab: true
                Accessible.role: Accessible.StaticText
                Accessible.name: spoken
                Keys.onDownPressed: scrollBy(44)
                Keys.onUpPressed: scrollBy(-44)

                Column {
                    id: texts

                    x: 15
                    y: 14
                    width: page.width - 2 * x
                    spacing: 8

                    Label {
                        visible: !scene.report.markdown
                        text: scene.report.heading
                        width: parent.width
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }
                    Repeater {
                        model: scene.report.markdown ? [] : scene.report.paragraphs(Theme.ink2, scene.report.leavesOutAddresses)

                        Part {
                            required property string modelData

                            text: modelData
                            textFormat: Text.StyledText
                        }
                    }
                    Part {
                        visible: scene.report.markdown
                        text: scene.report.markdown ? scene.report.text : ""
                    }
                }
            }
            Rectangle {
                visible: page.contentHeight - page.contentY > page.height + 1
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.margins: 1
                height: 40
                radius: Theme.cardRadius - 1
                gradient: Gradient {
                    GradientStop {
                        position: 0
                        color: Qt.rgba(Theme.ground.r, Theme.ground.g, Theme.ground.b, 0)
                    }
                    GradientStop {
                        position: 1
                        color: Theme.ground
                    }
                }
            }
            ScrollMark {
                flickable: page
            }
            FocusRing {
                anchors.fill: parent
                shown: page.activeFocus
            }
        }
        Column {
            id: choices

            anchors.top: box.bottom
            width: parent.width
            topPadding: 4
            bottomPadding: 20

            MenuRow {
                text: qsTr("Leave Out Addresses")
                // The switch ends where the box does, 5 points before a row's end.
                x: Theme.mirrored ? 5 : 0
                width: parent.width - 5
                chevron: false
                pressable: false
                Accessible.ignored: true // the switch has the row's name

                Switch {
                    text: qsTr("Leave Out Addresses")
                    checked: scene.report.leavesOutAddresses
                    onToggled: scene.report.leavesOutAddresses = checked
                }
            }
            Item {
                width: parent.width
                height: 12
            }
            FilledButton {
                objectName: "copyReport"
                text: qsTr("Copy")
                x: scene.side
                width: parent.width - 2 * x
                onClicked: scene.report.copy()
            }
            Item {
                width: parent.width
                height: 4
            }
            PlainButton {
                objectName: "saveReport"
                text: qsTr("Save as File")
                x: scene.side
                width: parent.width - 2 * x
                onClicked: scene.report.save()
            }
        }
    }
}
