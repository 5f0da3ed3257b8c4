// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The button that shows a field's secret. The secret is hidden again when the button is pressed again, when the
/// keyboard focus goes elsewhere, or when the field is disabled, hidden or its window is left.
IconButton {
    id: eye

    required property Item field
    property bool revealed: false

    readonly property bool held: (field.activeFocus || eye.activeFocus) && field.enabled && field.visible && Window.active

    /// Whether the key would copy the field's text to the clipboard.
    function isCopying(event: var): bool {
        // The linter of Qt 6.4 does not know StandardKey.
        return event.matches(StandardKey.Copy) || event.matches(StandardKey.Cut); // qmllint disable unqualified
    }

    // Tab goes from field to field; the field's menu brings the keyboard focus here.
    activeFocusOnTab: false
    iconName: revealed ? "hide" : "show"
    text: revealed ? qsTr("Hide password") : qsTr("Show password")
    ink: Theme.ink2
    onClicked: {
        if (!revealed && !held) {
            field.forceActiveFocus(Qt.OtherFocusReason);
        }
        revealed = !revealed;
    }
    // Between the field and the button, the keyboard focus is for a moment on neither.
    onHeldChanged: settled.restart()

    Timer {
        id: settled

        interval: 0
        onTriggered: {
            if (!eye.held) {
                eye.revealed = false;
            }
        }
    }
}
