// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// How a list's rows come, go and make way.
QtObject {
    id: motion

    required property ListView list

    readonly property Transition fadeIn: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.settle
        }
    }
    readonly property Transition fadeOut: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.settle
        }
    }
    readonly property Transition slideAway: Transition {
        NumberAnimation {
            property: "x"
            to: -motion.list.width
            duration: Theme.rowDelete
            easing.type: Easing.OutCubic
        }
    }
    readonly property Transition closeUp: Transition {
        NumberAnimation {
            property: "y"
            duration: Theme.rowDelete
            easing.type: Easing.OutCubic
        }
    }
}
