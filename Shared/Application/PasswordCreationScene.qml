// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Application
import Lodestar.Kit

/// The form of the passcode sheet, below the sheet's bar: the old passcode, if there is one, and the new one twice.
SheetContent {
    id: scene

    required property ViewController controller

    readonly property PasswordCreationViewController sheet: controller as PasswordCreationViewController

    readonly property int rowsHeight: sheet.heightForRowAtIndexPath(0) + sheet.heightForRowAtIndexPath(1)
                                      + sheet.heightForRowAtIndexPath(2) + sheet.heightForRowAtIndexPath(3)

    title: sheet.navigationBar.text
    firstField: oldField.visible ? oldField : updateField
    // Rows grow with the size of text, and the sheet grows with the rows.
    extraHeight: Math.max(0, trailingRow.y + trailingRow.height - rowsHeight)
    onSaved: sheet.savePW()
    onCancelled: sheet.cancel()

    Connections {
        target: scene.controller
        function onEndEditingRequested() {
            form.endEditing();
        }
    }

    Form {
        id: form

        anchors.fill: parent
        restingHeight: scene.restingHeight
        onTapped: scene.sheet.hideKeyboardOnTouch()

        PasscodeRow {
            id: oldField

            sheet: scene.sheet
            label: qsTr("Old passcode")
            outlet: scene.sheet.oldPassword
            row: 0
        }
        PasscodeRow {
            id: updateField

            sheet: scene.sheet
            label: qsTr("New passcode")
            outlet: scene.sheet.updatePassword
            row: 1
            ruled: oldField.visible
        }
        PasscodeRow {
            sheet: scene.sheet
            label: qsTr("Verify passcode")
            outlet: scene.sheet.verifyPassword
            row: 2
            ruled: true
        }
        Item {
            id: trailingRow

            width: form.width
            height: Math.max(scene.sheet.heightForRowAtIndexPath(3), note.height + 10)

            Label {
                id: note

                text: scene.sheet.note.text
                size: Theme.noteSize
                color: Theme.ink2
                x: Theme.rowStart
                width: parent.width - Theme.rowStart - Theme.rowEnd
                anchors.verticalCenter: parent.verticalCenter
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                onTextChanged: announcement.say(text)
            }
            Announcement {
                id: announcement
            }
            InsetHairline {
                separatorLeft: scene.sheet.separatorLeft
                separatorRight: scene.sheet.separatorRight
            }
        }
    }
    Alert {
        outlet: scene.sheet.alert
        // Saving took the focus from the fields and may have emptied them; the person's next step is to type again.
        onClosed: scene.firstField.edit(Qt.OtherFocusReason)
    }

    component PasscodeRow: FormField {
        id: field

        required property PasswordCreationViewController sheet
        required property int row
        property bool ruled: false

        secure: true
        labelWidth: Math.round(137 * Theme.textScale)
        rowHeight: sheet.heightForRowAtIndexPath(row)
        onReturnPressed: sheet.textFieldShouldReturn(outlet)

        InsetHairline {
            separatorLeft: field.sheet.separatorLeft
            separatorRight: field.sheet.separatorRight
            visible: field.ruled
        }
    }
}
