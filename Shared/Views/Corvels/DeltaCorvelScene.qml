// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The console editor's form, below the bar of its sheet: four fields and, when the sheet has room for it, the line
/// that tells the progress of saving.
SheetContent {
    id: scene

    required property ViewController controller

    readonly property DeltaCorvelViewController editor: controller as DeltaCorvelViewController

    title: editor.navigationBar.text
    saveEnabled: !editor.busy
    firstField: nameField
    // The fields grow with the text size, and the status line grows with its text while the sheet has room for the
    // line.
    extraHeight: Math.max(0, status.y - 4 * nameField.rowHeight)
                 + (statedHeight > 4 * nameField.rowHeight ? Math.max(0, status.height - status.leastHeight) : 0)
    onSaved: editor.saveCorvel()
    onCancelled: editor.cancel()

    /// A remark on what is probably wrong with an address; empty for nothing. The address is accepted all the same.
    function addressHint(address: string): string {
        if (address.includes("://")) {
            return qsTr("Leave out \"%1\".").arg(address.substring(0, address.indexOf("://") + 3));
        }
        if (address.includes("/")) {
            return qsTr("Leave out \"/\" and what follows it.");
        }
        return /\s/.test(address) ? qsTr("The address contains a blank.") : "";
    }

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
        onTapped: scene.editor.hideKeyboardOnTouch()

        EditorField {
            id: nameField

            editor: scene.editor
            label: qsTr("Name")
            outlet: scene.editor.nameField
            ruled: false
            next: addressField
        }
        EditorField {
            id: addressField

            editor: scene.editor
            label: qsTr("Address")
            placeholder: qsTr("Host name or address")
            hint: scene.addressHint(outlet.text)
            next: usernameField
            outlet: scene.editor.addressField
            confidential: true
            inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        }
        EditorField {
            id: usernameField

            editor: scene.editor
            label: qsTr("User ID")
            next: passwordField
            outlet: scene.editor.usernameField
            confidential: true
        }
        EditorField {
            id: passwordField

            editor: scene.editor
            label: qsTr("Password")
            outlet: scene.editor.passwordField
            secure: true
            onReturnPressed: scene.editor.saveCorvel()
        }
        StatusLine {
            id: status

            outlet: scene.editor.statusLabel
            busy: scene.editor.busy
            width: form.width

            InsetHairline {
                separatorLeft: scene.editor.separatorLeft
                separatorRight: scene.editor.separatorRight
            }
        }
    }
    Connections {
        target: scene.editor.statusLabel
        function onTextChanged() {
            if (scene.editor.statusLabel.text !== "") {
                form.reveal(status);
            }
        }
    }

    component EditorField: FormField {
        id: field

        required property DeltaCorvelViewController editor
        property bool ruled: true

        // A field is pale only while saving. After an error the field stays disabled for a moment, but is readable.
        opacity: field.editor.busy ? 0.5 : 1
        onReturnPressed: field.editor.textFieldShouldReturn(outlet)

        InsetHairline {
            separatorLeft: field.editor.separatorLeft
            separatorRight: field.editor.separatorRight
            visible: field.ruled
        }
    }
}
