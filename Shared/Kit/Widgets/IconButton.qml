// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A button that shows a picture; `text` is its name for screen readers.
Pressable {
    id: button

    required property string iconName
    property color ink: Theme.accentInk
    property bool directional: false
    /// The name in KeyTable of what the button does, if keys do it, too.
    property string action

    function updateTip() {
        if (hovered && enabled && !pressed) {
            Tips.enter(button, KeyTable.withKeys(text, action));
        } else {
            Tips.leave(button);
        }
    }

    implicitWidth: Theme.target
    implicitHeight: Theme.target
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.Button
    Accessible.name: text
    onHoveredChanged: updateTip()
    onPressedChanged: updateTip()

    HoverWash {
        anchors.fill: parent
        shown: button.hovered && button.enabled
    }
    FocusRing {
        anchors.fill: parent
        shown: button.visualFocus
    }
    Icon {
        name: button.iconName
        color: button.hovered ? Theme.hoverInk(button.ink) : button.ink
        directional: button.directional
        anchors.centerIn: parent
        opacity: button.pressed ? 0.55 : 1

        Behavior on opacity {
            NumberAnimation { duration: button.pressed ? Theme.pressIn : Theme.pressOut }
        }
    }
}
