// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A switch of 50 by 30 points in a target of 44. With an outlet, the switch shows the outlet's value and writes the
/// user's change into it.
Pressable {
    id: control

    property SwitchOutlet outlet: null
    property bool checked: outlet !== null && outlet.on
    /// The user changed the switch.
    signal toggled()

    implicitWidth: 50
    implicitHeight: Theme.target
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked

    onClicked: {
        if (outlet !== null) {
            outlet.on = !outlet.on;
        } else {
            checked = !checked;
        }
        toggled();
    }

    HoverWash {
        x: -4
        y: (control.height - height) / 2
        width: 58
        height: 38
        radius: 19
        shown: control.hovered && control.enabled
    }
    FocusRing {
        x: -4
        y: (control.height - height) / 2
        width: 58
        height: 38
        radius: 19
        shown: control.visualFocus
    }
    Rectangle {
        width: 50
        height: 30
        y: (control.height - height) / 2
        radius: 15
        color: control.checked ? Theme.accent : Theme.track

        Behavior on color {
            ColorAnimation { duration: Theme.settle }
        }
        Rectangle {
            width: 26
            height: 26
            radius: 13
            y: 2
            x: 2 + (control.checked !== Theme.mirrored ? 20 : 0)
            color: Theme.knob
            border.width: 1 / Screen.devicePixelRatio
            border.color: Theme.knobEdge

            Behavior on x {
                NumberAnimation { duration: Theme.settle; easing.type: Easing.OutCubic }
            }
        }
    }
}
