// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// Makes a square surface look rounded by covering its corners in the colour behind it. The surface is not clipped,
/// because rows of a card are pressed, swiped and removed one by one and the software renderer clips to rectangles
/// only.
Item {
    id: corners

    property bool roundTop: true
    property bool roundBottom: true
    property color color: Theme.ground
    property int radius: Theme.cardRadius

    clip: Theme.strong

    Repeater {
        model: 4

        Icon {
            required property int index

            readonly property bool isBottom: index > 1
            readonly property bool isRight: index === 1 || index === 2

            name: "corner"
            size: corners.radius
            color: corners.color
            visible: isBottom ? corners.roundBottom : corners.roundTop
            x: isRight ? corners.width - width : 0
            y: isBottom ? corners.height - height : 0
            rotation: index * 90
            LayoutMirroring.enabled: false
        }
    }
    // Of a card that goes on above or below, the outline's sides alone.
    Rectangle {
        visible: Theme.strong
        anchors.fill: parent
        anchors.topMargin: corners.roundTop ? 0 : -2 * radius
        anchors.bottomMargin: corners.roundBottom ? 0 : -2 * radius
        radius: corners.radius
        color: "transparent"
        border.width: Theme.outlineWidth
        border.color: Theme.outline
    }
}
