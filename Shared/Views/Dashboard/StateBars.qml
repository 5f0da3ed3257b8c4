// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The partitions' states as bars in the colours of their pie, each with its count and what changed since yesterday.
/// With large text the bar stands below its state.
Item {
    id: place

    required property var states
    /// The least height of the card.
    property real cardHeight: 0
    readonly property real wantedCardHeight: rows.height + 20
    readonly property bool stacked: Theme.stacked

    implicitHeight: heading.height + card.height

    SectionHeader {
        id: heading

        text: qsTr("Partitions by State")
        detail: qsTr("and since yesterday")
        width: place.width
    }
    Rectangle {
        id: card

        y: heading.height
        width: place.width
        height: Math.max(place.cardHeight, place.wantedCardHeight)
        radius: Theme.cardRadius
        color: Theme.card
        border { width: Theme.outlineWidth; color: Theme.outline }

        Column {
            id: rows

            y: 10
            width: parent.width

            Repeater {
                model: place.states

                Item {
                    id: row

                    required property stateBar modelData
                    readonly property real wordWidth: place.stacked ? width - 40 - number.width - change.width : 104
                    readonly property real barStart: place.stacked ? 20 : 124
                    readonly property real barRoom: place.stacked ? width - 40
                                                                  : width - barStart - 8 - number.width - change.width - 20

                    /// Maps a distance from the row's start to x, for either text direction.
                    function at(start: real, extent: real): real {
                        return Theme.mirrored ? width - start - extent : start;
                    }

                    width: rows.width
                    height: place.stacked ? word.height + 22 : Math.max(Math.round(36 * Theme.textScale), word.height + 8)
                    Accessible.role: Accessible.StaticText
                    Accessible.name: modelData.accessibleText

                    Label {
                        id: word

                        text: row.modelData.state
                        size: Theme.captionSize
                        color: Theme.ink2
                        elide: Text.ElideMiddle
                        width: row.wordWidth
                        x: row.at(20, width)
                        y: place.stacked ? 0 : Math.round((row.height - height) / 2)
                        Accessible.ignored: true
                    }
                    Rectangle {
                        height: 10
                        radius: Math.min(3, width / 2)
                        color: row.modelData.color
                        // A state that exists is seen, however few partitions have it.
                        width: Math.max(1, row.barRoom * row.modelData.share)
                        x: row.at(row.barStart, width)
                        y: place.stacked ? word.height + 4 : Math.round((row.height - height) / 2)
                    }
                    Label {
                        id: number

                        text: row.modelData.count
                        size: Theme.stateSize
                        width: Math.max(Math.round(32 * Theme.textScale), implicitWidth)
                        horizontalAlignment: Text.AlignRight
                        x: row.at(row.width - 20 - change.width - width, width)
                        y: word.y + Math.round((word.height - height) / 2)
                        Accessible.ignored: true
                    }
                    Label {
                        id: change

                        text: row.modelData.change
                        size: Theme.captionSize
                        color: Theme.ink3
                        width: Math.max(Math.round(36 * Theme.textScale), implicitWidth + 8)
                        horizontalAlignment: Text.AlignRight
                        x: row.at(row.width - 20 - width, width)
                        y: word.y + Math.round((word.height - height) / 2)
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
