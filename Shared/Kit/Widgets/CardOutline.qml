// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The outline of a card, where the system asks for strong contrast. Of a card that goes on above or below, the
/// outline's sides alone.
Item {
    id: outline

    required property CardCorners subject

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: outline.subject.roundTop ? 0 : -2 * radius
        anchors.bottomMargin: outline.subject.roundBottom ? 0 : -2 * radius
        radius: outline.subject.radius
        color: "transparent"
        border.width: Theme.outlineWidth
        border.color: Theme.outline
    }
}
