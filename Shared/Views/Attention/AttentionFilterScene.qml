// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The sheet Show of the Attention tab. Each choice works at once; Reset takes them all back.
SheetContent {
    id: scene

    required property ViewController controller
    readonly property AttentionFilterController filter: controller as AttentionFilterController

    cancelText: qsTr("Reset")
    saveText: qsTr("Done")
    escapeSaves: true
    onCancelled: filter.reset()
    onSaved: filter.done()

    ListView {
        id: list

        anchors.fill: parent
        model: scene.filter.consoles
        reuseItems: true
        focus: true
        keyNavigationEnabled: false
        boundsBehavior: Flickable.StopAtBounds
        topMargin: choices.height
        bottomMargin: Math.max(16, height - scene.restingHeight)
        delegate: MenuRow {
            id: row

            required property int index
            required property string name
            required property string count
            required property bool chosen

            width: list.width
            rowHeight: 48
            text: name
            detail: count
            chevron: false
            separator: index > 0
            Accessible.role: Accessible.CheckBox
            Accessible.checkable: true
            Accessible.checked: chosen
            onClicked: scene.filter.toggleConsole(index)

            Item {
                width: 24
                height: 24
                anchors.verticalCenter: parent.verticalCenter

                Icon {
                    visible: row.chosen
                    name: "check"
                }
            }
        }
        // Lies in the margin instead of a header: in Qt 6.4 a list makes no header of a bound component.
        Column {
            id: choices

            parent: list.contentItem
            width: list.width
            y: list.originY - height
            onHeightChanged: {
                // A list that stood at its top stays there while the chips wrap.
                if (list.contentY <= list.originY - heightBefore + 0.5) {
                    list.contentY = list.originY - height;
                }
                heightBefore = height;
            }

            property real heightBefore: 0

            SectionHeader {
                text: qsTr("Group by")
                space: 16
                width: parent.width
            }
            SegmentedControl {
                titles: [qsTr("Severity"), qsTr("Console")]
                label: qsTr("Group by")
                currentIndex: scene.filter.byConsole ? 1 : 0
                color: Theme.sheetWell
                x: Theme.rowStart
                width: parent.width - 2 * x
                onActivated: (index) => scene.filter.byConsole = index === 1
            }
            SectionHeader {
                text: qsTr("Kinds")
                width: parent.width
            }
            Flow {
                id: chips

                x: Theme.rowStart
                width: parent.width - 2 * x
                spacing: 8

                Repeater {
                    model: scene.filter.kindNames

                    Chip {
                        required property int index
                        required property string modelData

                        text: modelData
                        count: scene.filter.kindCounts[index]
                        on: scene.filter.chosenKinds[index]
                        room: chips.width
                        onToggled: scene.filter.toggleKind(index)
                    }
                }
            }
            SectionHeader {
                text: qsTr("Consoles")
                width: parent.width
            }
            SearchField {
                visible: scene.filter.searchable
                placeholder: qsTr("Find a console")
                text: scene.filter.searchText
                x: Theme.rowStart
                width: parent.width - 2 * x
                onTextChanged: scene.filter.searchText = text
            }
        }
        ScrollMark {
            flickable: list
        }
    }
}
