// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// The popup of an `EditMenu`: the choices that the field's text and the clipboard allow now.
T.Popup {
    id: menu

    property var field: null
    property bool secret: true
    property SecretSwitch secretSwitch: null

    property bool hasSelection: false
    property bool hasText: false
    property bool canPaste: false

    parent: menu.field
    margins: 8
    padding: 4
    focus: true
    closePolicy: T.Popup.CloseOnPressOutside | T.Popup.CloseOnEscape

    function show(x: real, y: real) {
        hasSelection = menu.field.selectedText !== "";
        hasText = menu.field.length > 0;
        canPaste = menu.field.canPaste;
        const above = y - implicitHeight - 16;
        menu.x = x - implicitWidth / 2;
        menu.y = menu.field.mapToItem(null, 0, above).y >= 8 ? above : y + 24;
        open();
    }
    function run(action: string) {
        close();
        menu.field.forceActiveFocus(Qt.OtherFocusReason);
        menu.field[action]();
    }

    onClosed: {
        if (menu.field !== null && menu.field.visible) {
            menu.field.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
    onOpened: choices.forceActiveFocus(Qt.PopupFocusReason)

    background: RaisedCard {
        radius: Theme.cardRadius
    }
    contentItem: ModalLayer {
        id: choices

        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight
        LayoutMirroring.enabled: Theme.mirrored
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Edit text")
        Keys.onRightPressed: step(!Theme.mirrored)
        Keys.onLeftPressed: step(Theme.mirrored)

        function step(forward: bool) {
            const from = Window.activeFocusItem ?? choices;
            from.nextItemInFocusChain(forward).forceActiveFocus(Qt.TabFocusReason);
        }

        Row {
            id: row

            Choice {
                text: qsTr("Cut")
                visible: menu.hasSelection && !menu.secret
                onClicked: menu.run("cut")
            }
            Choice {
                text: qsTr("Copy")
                visible: menu.hasSelection && !menu.secret
                onClicked: menu.run("copy")
            }
            Choice {
                text: qsTr("Paste")
                enabled: menu.canPaste
                focus: true
                onClicked: menu.run("paste")
            }
            Choice {
                text: menu.secretSwitch !== null ? menu.secretSwitch.text : ""
                visible: menu.hasText && menu.secretSwitch !== null
                onClicked: {
                    menu.close();
                    menu.field.forceActiveFocus(Qt.OtherFocusReason);
                    menu.secretSwitch.revealed = !menu.secretSwitch.revealed;
                }
            }
            Choice {
                text: qsTr("Select All")
                visible: menu.hasText
                onClicked: menu.run("selectAll")
            }
        }
    }

    component Choice: PlainButton {
        size: Theme.stateSize
        scaleFactor: Theme.barScale
        Accessible.role: Accessible.MenuItem
    }
}
