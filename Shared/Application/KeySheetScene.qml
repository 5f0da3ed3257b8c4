// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Application
import Lodestar.Kit

/// The help for the keyboard, or the commands with a field that narrows them.
SheetContent {
    id: scene

    required property ViewController controller
    readonly property KeySheetController sheet: controller as KeySheetController

    cancelText: sheet.runs ? qsTr("Cancel") : ""
    saveText: sheet.runs ? "" : qsTr("Done")
    escapeSaves: !sheet.runs
    onCancelled: sheet.leave()
    onSaved: sheet.leave()
    Keys.onUpPressed: moveKeyboard(false)
    Keys.onDownPressed: moveKeyboard(true)
    Keys.onReturnPressed: sheet.run(0)
    Keys.onEnterPressed: sheet.run(0)

    function moveKeyboard(forward: bool) {
        let next = Window.activeFocusItem?.nextItemInFocusChain(forward) ?? null;
        if (next as IconButton !== null) { // the one that empties the field
            next = next.nextItemInFocusChain(forward);
        }
        if (next !== null) {
            next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
        }
    }

    component KeyCap: Rectangle {
        id: cap

        required property string modelData

        width: Math.max(height, name.implicitWidth + 16)
        height: Math.round(18 * Theme.textScale) + 8
        radius: Theme.plateRadius
        color: Theme.sheetWell

        Label {
            id: name

            text: cap.modelData
            size: Theme.captionSize
            anchors.centerIn: parent
            Accessible.ignored: true
        }
    }

    SearchField {
        id: search

        visible: scene.sheet.runs
        hasKeyboard: scene.sheet.runs
        placeholder: qsTr("Find a command")
        x: Theme.rowStart
        y: 12
        width: parent.width - 2 * x
        onTextChanged: scene.sheet.searchText = text
    }
    Flickable {
        id: list

        anchors.fill: parent
        anchors.topMargin: search.visible ? search.y + search.height + 8 : 0
        clip: true
        contentHeight: rows.height
        bottomMargin: Math.max(16, height + anchors.topMargin - scene.restingHeight)
        boundsBehavior: Flickable.StopAtBounds
        focus: !scene.sheet.runs
        activeFocusOnTab: !scene.sheet.runs
        Keys.enabled: !scene.sheet.runs
        Keys.onDownPressed: scrollBy(44)
        Keys.onUpPressed: scrollBy(-44)
        Keys.onPressed: (event) => {
            if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp) {
                scrollBy((event.key === Qt.Key_PageDown ? 1 : -1) * (height - 44));
                event.accepted = true;
            }
        }

        readonly property Item keyboardItem: Window.activeFocusItem
        onKeyboardItemChanged: reveal(keyboardItem as MenuRow)

        function scrollBy(points: real) {
            contentY = Math.max(0, Math.min(contentHeight + bottomMargin - height, contentY + points));
        }
        function reveal(row: MenuRow) {
            if (row !== null) {
                const top = row.mapToItem(rows, 0, 0).y;
                contentY = Math.max(0, Math.max(top + row.height + 12 - height, Math.min(contentY, top - 12)));
            }
        }

        Column {
            id: rows

            width: list.width

            Repeater {
                model: scene.sheet.rows

                Column {
                    id: place

                    required property int index
                    required property keyRow modelData

                    width: rows.width

                    SectionHeader {
                        visible: place.modelData.header !== ""
                        text: place.modelData.header
                        space: place.index === 0 ? 16 : Theme.sectionGap
                        width: parent.width
                    }
                    MenuRow {
                        pressable: scene.sheet.runs
                        chevron: false
                        rowHeight: 44
                        text: place.modelData.title
                        detail: Theme.stacked ? place.modelData.line : ""
                        separator: place.index > 0 && place.modelData.header === ""
                        Accessible.name: Sentence.joined([text, place.modelData.line])
                        onClicked: scene.sheet.run(place.index)

                        Row {
                            visible: !Theme.stacked
                            spacing: 6

                            Repeater {
                                model: Theme.stacked ? [] : place.modelData.keys

                                KeyCap {}
                            }
                        }
                    }
                }
            }
        }
        ScrollMark {
            flickable: list
        }
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
    }
}
