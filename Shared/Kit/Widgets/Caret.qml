// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The text cursor.
Rectangle {
    id: caret

    property bool shown: parent !== null && parent.activeFocus

    width: 2
    radius: 1
    color: Theme.accent
    visible: shown

    SequentialAnimation on opacity {
        running: caret.shown && !Theme.reducedMotion
        loops: Animation.Infinite
        PropertyAction { value: 1 }
        PauseAnimation { duration: 530 }
        PropertyAction { value: 0 }
        PauseAnimation { duration: 530 }
    }
}
