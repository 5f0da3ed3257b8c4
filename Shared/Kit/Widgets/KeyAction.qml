// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// What a screen does by keys. The keys stand in KeyTable under the action's name, and people find the action in the
/// help and among the commands for as long as it is enabled.
Shortcut {
    id: action

    required property string name

    sequences: KeyTable.sequencesOf(name)
    readonly property bool keyed: StackPlace.keyed
    // Of two screens side by side, the one with the keyboard acts: the same keys on both would do nothing.
    readonly property Binding stilled: Binding {
        target: action
        property: "enabled"
        value: false
        when: !action.keyed
    }
    Component.onCompleted: KeyTable.offer(action)
}
