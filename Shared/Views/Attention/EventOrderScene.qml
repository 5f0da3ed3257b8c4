// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The sheet Order of the events. Each choice works at once; Reset takes them all back.
SheetContent {
    id: scene

    required property ViewController controller
    readonly property EventOrderViewController order: controller as EventOrderViewController

    cancelText: qsTr("Reset")
    saveText: qsTr("Done")
    escapeSaves: true
    extraHeight: Math.max(0, choices.height + 16 - statedHeight)
    onCancelled: order.reset()
    onSaved: order.done()

    /// One of several choices: a word, and a tick while it is chosen.
    component Choice: MenuRow {
        id: choice

        required property bool chosen

        rowHeight: 48
        chevron: false
        Accessible.role: Accessible.RadioButton
        Accessible.checkable: true
        Accessible.checked: chosen

        Item {
            width: 24
            height: 24

            Icon {
                visible: choice.chosen
                name: "check"
            }
        }
    }

    Flickable {
        id: list

        anchors.fill: parent
        contentHeight: choices.height
        bottomMargin: Math.max(16, height - scene.restingHeight)
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: choices

            width: list.width
            topPadding: 8

            Repeater {
                model: scene.order.orders

                Choice {
                    required property int index
                    required property string modelData

                    text: modelData
                    separator: index > 0
                    chosen: scene.order.order === index
                    onClicked: scene.order.order = index
                }
            }
            SectionHeader {
                text: qsTr("Show")
                width: parent.width
            }
            Flow {
                id: chips

                x: Theme.rowStart
                width: parent.width - 2 * x
                spacing: 8

                Chip {
                    text: qsTr("Open")
                    count: scene.order.openCount
                    on: scene.order.openOnly
                    room: chips.width
                    onToggled: scene.order.openOnly = !scene.order.openOnly
                }
                Chip {
                    text: qsTr("Call home")
                    count: scene.order.callHomeCount
                    on: scene.order.callHomeOnly
                    room: chips.width
                    onToggled: scene.order.callHomeOnly = !scene.order.callHomeOnly
                }
            }
        }
        ScrollMark {
            flickable: list
        }
    }
}
