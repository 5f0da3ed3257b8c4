// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Cut, Copy, Paste and Select All for a text field. The menu comes up where a long press, the second button or the
/// menu key asked for it, and is made on first use. A field that hides its text offers neither Cut nor Copy.
Loader {
    id: loader

    /// The text field: its text, its selection and its clipboard functions.
    required property var field
    property bool secret: false
    /// The field's switch for showing a secret, which the menu then offers as a choice; null without one.
    property SecretSwitch secretSwitch: null

    /// Shows the menu at a point of the field.
    function show(x: real, y: real) {
        active = true;
        const menu = item as EditMenuChoices;
        menu.field = field;
        menu.secret = secret;
        menu.secretSwitch = secretSwitch;
        menu.show(x, y);
    }

    active: false
    // The choices have a file of their own because Qt 6.4 cannot cast to a component declared in the same file.
    sourceComponent: EditMenuChoices {}
}
