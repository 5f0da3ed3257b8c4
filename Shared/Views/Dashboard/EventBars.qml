// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// New events a day, as a card below its heading.
Item {
    id: place

    required property DayBarsOutlet bars
    property real sideMargin: 0
    /// Points above the heading.
    property alias space: heading.space
    /// The least height of the card.
    property real cardHeight: 0
    readonly property real wantedCardHeight: days.height + 28

    implicitHeight: heading.height + card.height

    SectionHeader {
        id: heading

        text: qsTr("New Events a Day")
        detail: place.bars.days.length > 0 ? qsTr("%Ln days", "", place.bars.days.length) : ""
        x: place.sideMargin
        width: place.width - 2 * x
    }
    Rectangle {
        id: card

        x: place.sideMargin
        y: heading.height
        width: place.width - 2 * x
        height: Math.max(place.cardHeight, place.wantedCardHeight)
        radius: Theme.cardRadius
        color: Theme.card
        border { width: Theme.outlineWidth; color: Theme.outline }

        DayBars {
            id: days

            bars: place.bars
            x: 20
            y: 16
            width: parent.width - 40
            height: implicitHeight
        }
    }
}
