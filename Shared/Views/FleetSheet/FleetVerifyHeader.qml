// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The card above the consoles: how many of how many, with a bar while they are tried and a button once they were.
Column {
    id: header

    required property FleetVerifyViewController fleet
    required property real side

    topPadding: 8
    bottomPadding: 8 // beside the first section's own 12

    component Count: Row {
        id: count

        required property string name
        required property int role
        required property string text

        spacing: 6
        Accessible.role: Accessible.StaticText
        Accessible.name: count.name + " " + count.text

        StateMark {
            mark: Theme.stateMark(count.role)
            color: Theme.loneMarkInk(count.role)
            y: Math.round((words.lineHeight - height) / 2)
        }
        Label {
            id: words

            text: count.text
            size: Theme.stateSize
            Accessible.ignored: true
        }
    }

    Rectangle {
        x: header.side
        width: header.width - 2 * x
        height: content.height + 34
        radius: Theme.cardRadius
        color: Theme.card
        border { width: Theme.outlineWidth; color: Theme.outline }

        Column {
            id: content

            x: Theme.rowStart
            y: 18
            width: parent.width - 2 * x

            Item {
                width: parent.width
                height: figure.height + status.height + 2
                Accessible.role: Accessible.StaticText
                Accessible.name: header.fleet.figureLabel.text + " " + status.text

                CountingLabel {
                    id: figure

                    value: header.fleet.figureLabel.text
                    fromZero: false
                    size: Theme.figureSize
                    width: parent.width
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
                Label {
                    id: status

                    text: header.fleet.statusLabel.text
                    size: Theme.stateSize
                    color: Theme.ink2
                    y: figure.height + 2
                    width: parent.width
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
            }
            Item {
                visible: header.fleet.running
                width: parent.width
                height: 34
                Accessible.role: Accessible.ProgressBar
                Accessible.name: header.fleet.figureLabel.text

                Rectangle {
                    y: 14
                    width: parent.width
                    height: 6
                    radius: 3
                    color: Theme.well

                    Rectangle {
                        x: Theme.mirrored ? parent.width - width : 0
                        width: parent.width * header.fleet.progress
                        height: parent.height
                        radius: 3
                        color: Theme.accentInk

                        Behavior on width {
                            NumberAnimation { duration: Theme.reducedMotion ? 0 : Theme.settle }
                        }
                    }
                }
            }
            Flow {
                visible: header.fleet.running
                width: parent.width
                spacing: 20

                Count {
                    name: qsTr("Verified")
                    role: Role.State.Good
                    text: header.fleet.goodLabel.text
                }
                Count {
                    name: qsTr("Not verified")
                    role: Role.State.Error
                    text: header.fleet.badLabel.text
                }
                Count {
                    name: qsTr("waiting")
                    role: Role.State.Waiting
                    text: header.fleet.waitingLabel.text
                }
            }
            Item {
                visible: addButton.visible
                width: 1
                height: 16
            }
            FilledButton {
                id: addButton

                objectName: "addButton"
                visible: !header.fleet.addLabel.hidden
                text: header.fleet.addLabel.text
                width: parent.width
                onClicked: header.fleet.add()
            }
        }
    }
    FleetNote {
        visible: !header.fleet.addNote.hidden
        text: header.fleet.addNote.text
        x: header.side + Theme.rowStart
        width: header.width - 2 * x
    }
}
