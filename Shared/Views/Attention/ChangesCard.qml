// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The card above the changes: how many rows of each day are worse and better.
Item {
    id: place

    required property DayBarsOutlet bars
    property real sideMargin: 0

    visible: !bars.hidden
    // The first heading stands as far below as any heading.
    implicitHeight: bars.hidden ? 0 : card.height + 8

    component Key: Row {
        id: key

        required property color color
        required property string text

        spacing: 6

        Rectangle {
            width: Math.round(9 * Theme.badgeScale)
            height: width
            radius: 2
            color: key.color
            anchors.verticalCenter: parent.verticalCenter
        }
        Label {
            text: key.text
            size: Theme.noteSize
            color: Theme.ink2
            Accessible.ignored: true
        }
    }

    Rectangle {
        id: card

        x: place.sideMargin
        width: place.width - 2 * x
        height: days.y + days.height + 12
        radius: Theme.cardRadius
        color: Theme.card
        border { width: Theme.outlineWidth; color: Theme.outline }

        Flow {
            id: keys

            x: 20
            y: 14
            width: parent.width - 40
            spacing: 16

            Key {
                color: Theme.chartOrange
                text: qsTr("Worse, above")
            }
            Key {
                color: Theme.chartGreen
                text: qsTr("Better, below")
            }
        }
        DayBars {
            id: days

            bars: place.bars
            colors: [Theme.chartOrange, Theme.chartGreen]
            leadsOn: true
            x: 20
            y: keys.y + keys.height + 6
            width: parent.width - 40
            height: implicitHeight
        }
    }
}
