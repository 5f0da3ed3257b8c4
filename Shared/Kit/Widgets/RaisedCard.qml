// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A rounded surface above all others, with its shadow.
Item {
    id: card

    property int radius: Theme.sheetRadius
    property color color: Theme.raised

    BoxShadow {
        anchors.fill: parent
        radius: card.radius
    }
    Rectangle {
        anchors.fill: parent
        radius: card.radius
        color: card.color
        border.width: Theme.outlineWidth
        border.color: Theme.outline
    }
}
