// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A card of the connection screen, its header above it and its foot below.
Column {
    id: card

    enum Kind { Verdict, Steps, Stages, Feeds, Facts }

    required property connectionSection section
    required property ConnectionViewController connection
    property real space: Theme.sectionGap

    SectionHeader {
        visible: card.section.title !== ""
        text: card.section.title
        detail: card.section.detail
        space: card.space
        width: card.width
    }
    GroupCard {
        id: rows

        width: card.width

        Repeater {
            model: card.section.rows.length

            ConnectionLine {
                required property int index
                property connectionRow blank

                row: index < card.section.rows.length ? card.section.rows[index] : blank
                kind: card.section.kind
                above: index === 0 && timeBar.visible ? timeBar.height : 0
                number: index + 1
                width: card.width
            }
        }

        MenuRow {
            objectName: "refreshRow"
            visible: card.section.refreshes && (card.connection.refreshable || card.connection.updating)
            enabled: card.connection.refreshable
            greyed: false
            text: qsTr("Refresh This Console")
            detail: card.connection.updating ? qsTr("updating...") : ""
            ink: enabled ? Theme.accentInk : Theme.ink2
            chevron: false
            rowHeight: 44
            onClicked: card.connection.refresh()
        }

        // Lies on the first row, which leaves room for it, because no hairline parts the two.
        Item {
            id: timeBar

            parent: rows
            visible: card.section.parts.length > 0
            width: card.width
            height: split.height + words.height + 24

            /// Where the time went, in its order from left to right in any language, as on every axis of time.
            Row {
                id: split

                readonly property real room: parent.width - 2 * Theme.rowStart - spacing * (card.section.parts.length - 1)

                LayoutMirroring.enabled: false
                x: Theme.rowStart
                y: 12
                height: 6
                spacing: 2

                Repeater {
                    model: card.section.parts

                    Rectangle {
                        required property int index
                        required property double modelData
                        readonly property int last: card.section.parts.length - 1

                        width: Math.max(0, split.room * modelData)
                        height: 6
                        radius: index === 0 || index === last ? Math.min(3, width / 2) : 0
                        color: Theme.accentInk
                        opacity: last > 0 ? 0.35 + 0.65 * index / last : 1
                    }
                }
            }
            Label {
                id: words

                text: card.section.partsNames
                size: Theme.noteSize
                color: Theme.ink2
                anchors.left: parent.left
                anchors.leftMargin: Theme.rowStart
                anchors.right: sum.left
                anchors.rightMargin: 12
                y: split.y + split.height + 6
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Label {
                id: sum

                text: card.section.partsSum
                size: Theme.noteSize
                color: Theme.ink2
                anchors.right: parent.right
                anchors.rightMargin: Theme.rowStart
                y: words.y
                Accessible.role: Accessible.StaticText
                Accessible.name: Sentence.joined([card.section.partsNames, text])
            }
        }
    }
    Item {
        visible: card.section.foot !== ""
        width: card.width
        implicitHeight: foot.height + 8

        Label {
            id: foot

            text: card.section.foot
            size: Theme.captionSize
            color: Theme.ink2
            x: Theme.rowStart
            y: 8
            width: parent.width - 2 * Theme.rowStart
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
