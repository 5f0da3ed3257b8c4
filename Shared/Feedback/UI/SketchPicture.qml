// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Feedback
import Lodestar.Kit

/// A sketch as a card with a hairline around it: a picture of a light screen would not stand out from a light ground.
SketchView {
    CardCorners {
        anchors.fill: parent
    }
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        radius: Theme.cardRadius
        border.width: 1
        border.color: Theme.hairline
    }
}
