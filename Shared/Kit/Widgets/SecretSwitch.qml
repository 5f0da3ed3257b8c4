// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Shows what a field hides for as long as somebody looks: until it is pressed again, the keyboard goes elsewhere, or the
/// field is disabled, hidden or left with its window.
IconButton {
    id: eye

    required property Item field
    property bool revealed: false

    readonly property bool held: (field.activeFocus || eye.activeFocus) && field.enabled && field.visible && Window.active

    /// Whether the key would take what the field shows to the clipboard.
    function isCopying(event: var): bool {
        // The linter of Qt 6.4 does not know the keys.
        return event.matches(StandardKey.Copy) || event.matches(StandardKey.Cut); // qmllint disable unqualified
    }

    // Tab leads from field to field; the keyboard comes here by the field's menu.
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
    // The keyboard leaves one of the two before it comes to the other.
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
