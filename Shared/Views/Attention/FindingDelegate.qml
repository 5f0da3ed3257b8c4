// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A row of the Attention tab: a badge, a name over a sentence, and at the end an age over a console. With large text
/// the age and the console stand on a line of their own below the sentence. A row that leads to more rows is that text
/// alone.
TableCell {
    id: row

    required property findingCell cell

    readonly property bool stacked: Theme.stacked
    // Ends stand one below the other whether or not a row has a chevron.
    readonly property real trailing: Theme.rowEnd + 22
    readonly property real textStart: Theme.rowStart + badge.width + 12
    readonly property real room: Math.max(0, width - textStart - trailing)
    readonly property int gap: 12

    accessibleText: cell.accessibleText
    selectable: cell.leadsOn || cell.more !== ""
    leadsOn: cell.leadsOn && cell.more === ""
    swipeButtons: cell.rightButtons
    implicitHeight: cell.more !== "" ? Math.round(44 * Theme.textScale)
                                     : Math.max(Math.round(60 * Theme.textScale), words.height + Math.round(16 * Theme.textScale))

    /// Maps a distance from the row's start to x, for either text direction.
    function place(start: real, extent: real): real {
        return Theme.mirrored ? width - start - extent : start;
    }

    Icon {
        id: badge

        visible: row.cell.badge !== ""
        name: row.cell.badge
        color: row.cell.badgeState === Role.State.None ? Theme.accentInk : Theme.stateInk(row.cell.badgeState)
        size: Math.round(20 * Theme.badgeScale)
        x: row.place(Theme.rowStart, width)
        y: words.y + Math.round((name.lineHeight - height) / 2)
    }
    Label {
        visible: row.cell.more !== ""
        text: row.cell.more
        size: Theme.stateSize
        color: Theme.accentInk
        x: row.place(Theme.rowStart, width)
        width: row.width - Theme.rowStart - Theme.rowEnd
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    // Measured separately: the labels' implicit widths depend on their widths, which depend on these. One point is
    // added because the layout may round glyph widths up.
    TextMetrics {
        id: ageMeasure

        font: age.font
        text: row.cell.age
    }
    TextMetrics {
        id: consoleMeasure

        font: owner.font
        text: row.cell.console
    }
    Item {
        id: words

        readonly property real consoleY: !row.stacked ? name.height : name.height + sentence.height
        readonly property real consoleStart: age.width > 0 ? age.width + 16 : 0
        /// Large text: the age and the console share a line as long as they fit.
        readonly property bool together: consoleStart + owner.wanted <= row.room

        visible: row.cell.more === ""
        x: row.place(row.textStart, width)
        width: row.room
        height: !row.stacked ? name.height + sentence.height
                             : consoleY + (row.cell.age !== "" ? age.height : 0)
                               + (row.cell.console !== "" && (!together || row.cell.age === "") ? owner.height : 0)
        y: Math.round((row.height - height) / 2)

        Label {
            id: name

            text: row.cell.name
            elide: row.stacked ? Text.ElideNone : row.cell.namedByText ? Text.ElideRight : Text.ElideMiddle
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            width: row.stacked ? row.room : row.room - (age.width > 0 ? age.width + row.gap : 0)
            x: Theme.mirrored ? parent.width - width : 0
            Accessible.ignored: true
        }
        Label {
            id: age

            readonly property real wanted: row.cell.age === "" ? 0 : Math.ceil(ageMeasure.advanceWidth) + 1

            text: row.cell.age
            size: Theme.captionSize
            color: Theme.ink2
            width: Math.min(wanted, row.stacked ? row.room : Math.round(row.room / 2))
            elide: Text.ElideRight
            x: row.stacked !== Theme.mirrored ? 0 : parent.width - width
            y: row.stacked ? words.consoleY : name.baselineOffset - baselineOffset
            Accessible.ignored: true
        }
        Label {
            id: sentence

            text: row.cell.sentence
            size: Theme.captionSize
            color: Theme.ink2
            shrinks: true
            fontSizeMode: row.stacked || row.cell.quotes ? Text.FixedSize : Text.HorizontalFit
            minimumPixelSize: 11
            elide: row.stacked ? Text.ElideNone : Text.ElideRight
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            width: row.stacked ? row.room : row.room - (owner.width > 0 ? owner.width + row.gap : 0)
            x: Theme.mirrored ? parent.width - width : 0
            // From right to left, the marks around a code come from another face, which would push the line down.
            y: name.height + (row.stacked ? 0 : owner.baselineOffset - baselineOffset)
            Accessible.ignored: true
        }
        Label {
            id: owner

            readonly property real wanted: row.cell.console === "" ? 0 : Math.ceil(consoleMeasure.advanceWidth) + 1
            readonly property real start: words.together ? words.consoleStart : 0

            text: row.cell.console
            size: Theme.captionSize
            color: Theme.ink2
            elide: Text.ElideMiddle
            horizontalAlignment: row.stacked ? Text.AlignLeft : Text.AlignRight
            width: Math.min(wanted, row.stacked ? row.room : Math.round(row.room * 0.45))
            x: row.stacked ? (Theme.mirrored ? parent.width - start - width : start) : Theme.mirrored ? 0 : parent.width - width
            y: words.consoleY + (row.stacked && !words.together ? age.height : 0)
            Accessible.ignored: true
        }
    }
    Chevron {
        visible: row.leadsOn
        chosen: row.chosen
        x: row.place(row.width - Theme.rowEnd - width, width)
        anchors.verticalCenter: parent.verticalCenter
    }
}
