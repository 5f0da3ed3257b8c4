// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// A text field without a frame: its face, its cursor, its edit menu. With an outlet, text and outlet follow each other.
/// With a secret switch, the field draws dots from the first letter on unless the switch shows its text; that text
/// cannot be copied, and no keyboard learns it.
T.TextField {
    id: input

    /// The name of the field for assistive programs.
    required property string label
    property FieldOutlet outlet: null
    property SecretSwitch secretSwitch: null
    readonly property bool secret: secretSwitch !== null
    readonly property bool dotted: secret && !secretSwitch.revealed

    horizontalAlignment: TextInput.AlignLeft
    font.family: Theme.family
    color: Theme.ink
    selectionColor: Theme.match
    selectedTextColor: Theme.ink
    // Selecting with the mouse copies the selection by itself, so it is off while a secret is shown.
    selectByMouse: !secret || dotted
    echoMode: dotted ? TextInput.Password : TextInput.Normal
    passwordCharacter: "\u2022"
    passwordMaskDelay: 0
    inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase | (secret ? Qt.ImhHiddenText | Qt.ImhSensitiveData : 0)
    cursorDelegate: Caret {}
    Accessible.role: Accessible.EditableText
    Accessible.name: label
    Accessible.passwordEdit: secret
    Privacy.covered: secret
    Component.onCompleted: {
        if (outlet !== null) {
            text = outlet.text;
        }
        if (secret) {
            SecureText.hideFromAccessibility(input);
        }
    }
    onTextChanged: {
        if (outlet !== null) {
            outlet.text = text;
        }
    }
    onPressed: (event) => {
        if (event.button === Qt.RightButton) {
            editMenu.show(event.x, event.y);
        }
    }
    onPressAndHold: (event) => editMenu.show(event.x, event.y)
    Keys.onPressed: (event) => event.accepted = secret && secretSwitch.isCopying(event)
    Keys.onMenuPressed: editMenu.show(cursorRectangle.x, cursorRectangle.y)

    Connections {
        target: input.outlet
        function onTextChanged() {
            if (input.text !== input.outlet.text) {
                input.text = input.outlet.text;
            }
        }
        function onResignRequested() {
            input.focus = false;
        }
    }
    EditMenu {
        id: editMenu

        field: input
        secret: input.secret
        secretSwitch: input.secretSwitch
    }
}
