// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Cut, Copy, Paste and Select All for a text field, near where it was asked for: a long press, the second button, the
/// menu key. Made when first asked for. A field that hides its text gives none away.
Loader {
    id: loader

    /// Has the text, its selection and the clipboard's calls.
    required property var field
    property bool secret: false
    /// Of a field that has one: its choice is among those of the menu.
    property SecretSwitch secretSwitch: null

    /// At a point of the field.
    function show(x: real, y: real) {
        active = true;
        const menu = item as EditMenuChoices;
        menu.field = field;
        menu.secret = secret;
        menu.secretSwitch = secretSwitch;
        menu.show(x, y);
    }

    active: false
    // A file of its own: in Qt 6.4 no cast leads to a component that is declared in the same file.
    sourceComponent: EditMenuChoices {}
}
