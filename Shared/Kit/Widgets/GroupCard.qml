// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A card of fixed rows, one below the other, with hairlines between visible rows. A row may have a property
/// `pressedLook`; while it is true, the hairlines beside that row are hidden.
Item {
    id: card

    default property alias rows: column.data
    property color behind: Theme.ground
    property color surface: Theme.card
    property real separatorLeft: 10
    property real separatorRight: 15

    property var shownRows: []

    implicitHeight: column.implicitHeight

    Rectangle {
        anchors.fill: parent
        color: card.surface
        radius: Theme.cardRadius
    }
    Column {
        id: column

        width: parent.width
        onPositioningComplete: card.shownRows = Array.from(children).filter((row) => row.visible && row.height > 0)
    }
    Repeater {
        model: Math.max(0, card.shownRows.length - 1)

        Hairline {
            required property int index
            readonly property Item below: card.shownRows[index + 1] ?? null
            readonly property MenuRow rowAbove: card.shownRows[index] as MenuRow
            readonly property MenuRow rowBelow: below as MenuRow

            visible: !(rowAbove !== null && rowAbove.pressedLook) && !(rowBelow !== null && rowBelow.pressedLook)
            x: Theme.mirrored ? card.separatorRight : card.separatorLeft
            y: below !== null ? below.y : 0
            width: card.width - card.separatorLeft - card.separatorRight
        }
    }
    CardCorners {
        anchors.fill: parent
        color: card.behind
    }
}
