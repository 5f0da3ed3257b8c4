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

    ListView {
        id: list

        anchors.fill: parent
        model: scene.order.consoles
        reuseItems: true
        focus: true
        keyNavigationEnabled: false
        boundsBehavior: Flickable.StopAtBounds
        topMargin: choices.height
        // The sheet opens with the orders in view, whenever their height is known.
        onTopMarginChanged: contentY = originY - topMargin
        bottomMargin: Math.max(16, height - scene.restingHeight)
        delegate: Choice {
            required property int index
            required property string modelData

            width: list.width
            text: modelData
            separator: true
            chosen: scene.order.console === index
            onClicked: scene.order.chooseConsole(index)
        }
        // Lies in the margin instead of a header: in Qt 6.4 a list makes no header of a bound component.
        Column {
            id: choices

            parent: list.contentItem
            width: list.width
            y: list.originY - height
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
            SectionHeader {
                text: qsTr("Consoles")
                width: parent.width
            }
            SearchField {
                visible: scene.order.searchable
                placeholder: qsTr("Find a console")
                x: Theme.rowStart
                width: parent.width - 2 * x
                onTextChanged: scene.order.searchConsoles(text)
            }
            Choice {
                text: scene.order.allConsoles
                chosen: scene.order.allChosen
                onClicked: scene.order.chooseConsole(-1)
            }
        }
        ScrollMark {
            flickable: list
        }
    }
}
