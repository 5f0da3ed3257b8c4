// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The visible part of a HoverWash.
Rectangle {
    id: plane

    required property HoverWash subject
    property bool shown: false

    visible: opacity > 0
    opacity: shown ? 1 : 0
    radius: subject.radius
    color: subject.color
    // Bound once the plane is there, so that the first hover fades in, too.
    Component.onCompleted: shown = Qt.binding(() => plane.subject.shown)

    Behavior on opacity {
        NumberAnimation { duration: plane.shown ? Theme.pressIn : Theme.pressOut }
    }
}
