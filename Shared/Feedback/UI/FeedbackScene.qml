// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Feedback
import Lodestar.Kit

/// The picture to draw on, the tools, the note, and the actions for them.
PageScaffold {
    id: scene

    readonly property FeedbackViewController feedback: controller as FeedbackViewController
    readonly property var colorNames: [qsTr("Red"), qsTr("Yellow"), qsTr("Green"), qsTr("Blue"), qsTr("Black")]

    scrollView: page
    Keys.onEscapePressed: feedback.cancel()
    Keys.onBackPressed: feedback.cancel()

    bar: Item {
        property bool scrolled: false

        implicitHeight: Theme.barHeight

        IconButton {
            objectName: "cancelButton"
            iconName: "close"
            text: qsTr("Cancel")
            enabled: !scene.feedback.busy
            anchors.left: parent.left
            anchors.leftMargin: Math.max(4, scene.sideMargin - 12)
            anchors.verticalCenter: parent.verticalCenter
            onClicked: scene.feedback.cancel()
        }
        Label {
            text: scene.feedback.title
            scaleFactor: Theme.barScale
            color: Theme.titleInk
            anchors.centerIn: parent
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        PlainButton {
            objectName: "submitButton"
            text: scene.feedback.sends ? qsTr("Send") : qsTr("Save")
            scaleFactor: Theme.barScale
            enabled: !scene.feedback.busy
            anchors.right: parent.right
            anchors.rightMargin: Math.max(4, scene.sideMargin - 12)
            anchors.verticalCenter: parent.verticalCenter
            onClicked: scene.feedback.submit()
        }
        Hairline {
            visible: parent.scrolled
            width: parent.width
            anchors.bottom: parent.bottom
        }
    }

    KeyAction {
        name: "undo"
        enabled: !note.activeFocus && scene.visible
        onActivated: scene.feedback.sketch.undo()
    }

    ScrollPage {
        id: page

        topSpace: 0

        Item {
            readonly property size drawn: scene.feedback.sketch.pictureSize
            // The first row below stays partly visible, as a sign that there is more below.
            readonly property real room: page.height - tools.height - noteCard.height - foot.height - 68
            readonly property real wanted: Math.max(240, room)

            width: parent.width
            height: drawn.width > 0 ? Math.min(wanted, width * drawn.height / drawn.width) : 0

            SketchPicture {
                objectName: "sketchView"
                sketch: scene.feedback.sketch
                height: parent.height
                width: parent.drawn.height > 0 ? height * parent.drawn.width / parent.drawn.height : 0
                anchors.horizontalCenter: parent.horizontalCenter
                enabled: !scene.feedback.busy
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Picture of the screen, to draw on")
            }
        }
        Item {
            width: 1
            height: 12
        }
        Rectangle {
            id: tools

            readonly property real cell: Math.min(Theme.target, (width - 17) / 8)

            width: parent.width
            height: Theme.target + 8
            radius: Theme.cardRadius
            color: Theme.card
            border { width: Theme.outlineWidth; color: Theme.outline }

            Row {
                anchors.verticalCenter: parent.verticalCenter
                anchors.left: parent.left
                anchors.leftMargin: 4

                SketchTool {
                    width: tools.cell
                    iconName: "pencil"
                    text: qsTr("Pen")
                    chosen: scene.feedback.sketch.tool === Sketch.Pen
                    onClicked: scene.feedback.sketch.tool = Sketch.Pen
                }
                SketchTool {
                    objectName: "coverTool"
                    width: tools.cell
                    iconName: "cover"
                    text: qsTr("Cover")
                    chosen: scene.feedback.sketch.tool === Sketch.Cover
                    onClicked: scene.feedback.sketch.tool = Sketch.Cover
                }
                SketchTool {
                    objectName: "undoTool"
                    width: tools.cell
                    iconName: "undo"
                    text: qsTr("Undo")
                    enabled: scene.feedback.sketch.canUndo
                    onClicked: scene.feedback.sketch.undo()
                }
                Item {
                    width: 9
                    height: Theme.target

                    Hairline {
                        vertical: true
                        x: 4
                        y: 6
                        height: 32
                    }
                }
                Repeater {
                    model: scene.feedback.sketch.colors

                    SketchTool {
                        required property int index
                        required property color modelData

                        width: tools.cell
                        disc: modelData
                        text: scene.colorNames[index]
                        chosen: scene.feedback.sketch.tool === Sketch.Pen && scene.feedback.sketch.color === index
                        onClicked: scene.feedback.sketch.color = index
                    }
                }
            }
        }
        Item {
            width: 1
            height: 12
        }
        Rectangle {
            id: noteCard

            width: parent.width
            height: Math.max(119, note.contentHeight + 32)
            radius: Theme.cardRadius
            color: Theme.card
            border { width: Theme.outlineWidth; color: Theme.outline }

            T.TextArea {
                id: note

                objectName: "noteField"
                anchors.fill: parent
                leftPadding: 16
                rightPadding: 16
                topPadding: 14
                bottomPadding: 14
                wrapMode: TextEdit.Wrap
                textFormat: TextEdit.PlainText
                font.family: Theme.family
                font.pixelSize: Math.round(Theme.bodySize * Theme.textScale)
                color: Theme.ink
                selectionColor: Theme.match
                selectedTextColor: Theme.ink
                selectByMouse: true
                enabled: !scene.feedback.busy
                cursorDelegate: Caret {}
                Accessible.role: Accessible.EditableText
                Accessible.name: qsTr("What happened?")
                Component.onCompleted: text = scene.feedback.noteView.text
                onTextChanged: scene.feedback.noteView.text = text

                Connections {
                    target: scene.feedback.noteView
                    function onTextChanged() {
                        note.text = scene.feedback.noteView.text;
                    }
                }
                Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
                Keys.onEscapePressed: scene.feedback.cancel()
                Keys.onMenuPressed: editMenu.show(cursorRectangle.x, cursorRectangle.y)
                onPressed: (event) => {
                    if (event.button === Qt.RightButton) {
                        editMenu.show(event.x, event.y);
                    }
                }
                onPressAndHold: (event) => editMenu.show(event.x, event.y)

                EditMenu {
                    id: editMenu

                    field: note
                }
                Label {
                    visible: note.text === "" && note.preeditText === ""
                    text: qsTr("What happened?")
                    color: Theme.ink3
                    x: 16 + (Theme.mirrored ? 0 : Theme.caretRoom)
                    y: 12
                    width: parent.width - 32 - Theme.caretRoom
                    Accessible.ignored: true
                }
            }
            FocusRing {
                anchors.fill: parent
                shown: note.activeFocus && (note.focusReason === Qt.TabFocusReason
                                            || note.focusReason === Qt.BacktabFocusReason)
            }
        }
        Label {
            id: foot

            text: scene.feedback.sends
                  ? qsTr("Addresses are covered before the picture is shown. Passwords are never part of it.")
                  : qsTr("Addresses are covered before the picture is shown. Passwords are never part of it. The report stays on this device.")
            size: Theme.captionSize
            color: Theme.ink2
            wrapMode: Text.Wrap
            x: 16
            topPadding: 8 + drop
            width: parent.width - 32
        }
        Item {
            width: 1
            height: 16
        }
        GroupCard {
            id: more

            width: parent.width

            MenuRow {
                objectName: "textRow"
                text: scene.feedback.sends ? qsTr("What is sent") : qsTr("What is saved")
                enabled: !scene.feedback.busy
                onClicked: scene.feedback.showText()
            }
            MenuRow {
                objectName: "reportsRow"
                text: qsTr("Reports")
                visible: !scene.feedback.locked
                enabled: !scene.feedback.busy
                onClicked: scene.feedback.showReports()
            }
        }
    }
    Alert {
        outlet: scene.feedback.alert
    }
}
