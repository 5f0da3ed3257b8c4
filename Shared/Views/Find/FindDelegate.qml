// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A row of Find: a picture, a name over a line, and at the end a state over a console, or a count. With large text what
/// stands at the end stands below the line. A row that leads to more rows is that text alone.
TableCell {
    id: row

    required property findCell cell

    readonly property bool stacked: Theme.stacked
    /// An example of what can be found is shown whole.
    readonly property bool wraps: stacked || !cell.selectable
    readonly property bool hasPicture: cell.picture !== ""
    readonly property bool hasLine: cell.line.text !== ""
    readonly property bool hasState: cell.state.text !== ""
    /// Rows that lead nowhere have a larger picture, farther from the text.
    readonly property real textStart: Theme.rowStart + (hasPicture ? picture.width + (cell.leadsOn ? 12 : 16) : 0)
    readonly property real trailing: Theme.rowEnd + (cell.leadsOn ? 22 : 0)
    readonly property real room: Math.max(0, width - textStart - trailing)
    readonly property int gap: 12

    accessibleText: cell.accessibleText
    selectable: cell.selectable
    leadsOn: cell.leadsOn
    implicitHeight: cell.more !== "" ? Math.round(44 * Theme.textScale)
                                     : Math.max(Math.round((cell.count !== "" || cell.quiet ? 52 : 50) * Theme.textScale),
                                                words.height + Math.round((stacked ? 18 : 10) * Theme.textScale))

    /// Maps a distance from the row's start to x, for either text direction.
    function place(start: real, extent: real): real {
        return Theme.mirrored ? width - start - extent : start;
    }
    /// The same within the words.
    function placeWithin(start: real, extent: real): real {
        return Theme.mirrored ? room - start - extent : start;
    }

    Icon {
        id: picture

        visible: row.hasPicture
        name: row.cell.picture
        color: row.cell.quiet ? Theme.ink3 : Theme.accentInk
        size: Math.round(row.cell.pictureSize * Theme.badgeScale)
        directional: row.cell.leadsOn
        x: row.place(Theme.rowStart, width)
        y: row.stacked ? words.y + Math.round((name.lineHeight - height) / 2) : Math.round((row.height - height) / 2)
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
    // Measured separately: the label's implicit width depends on its width, which depends on this. One point is added
    // because the layout may round glyph widths up.
    TextMetrics {
        id: consoleMeasure

        font: owner.font
        text: row.cell.console
    }
    TextMetrics {
        id: lineMeasure

        font: line.font
        text: row.cell.line.text
    }
    Item {
        id: words

        readonly property real lines: name.height + (row.hasLine ? line.height : 0)
        /// Large text: the state and the console stand below, one under the other.
        readonly property real consoleY: lines + (row.hasState ? state.height : 0)
        readonly property real taken: row.hasState ? state.width + row.gap : row.cell.count !== "" ? count.width + row.gap : 0

        visible: row.cell.more === ""
        x: row.place(row.textStart, width)
        width: row.room
        height: !row.stacked ? lines : consoleY + (row.cell.console !== "" ? owner.height : 0)
        y: Math.round((row.height - height) / 2)

        MatchLabel {
            id: name

            text: row.cell.name.text
            match: row.cell.name.match
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            width: Math.max(0, row.stacked && row.cell.count === "" ? row.room : row.room - words.taken)
            x: row.placeWithin(0, width)
            Accessible.ignored: true
        }
        MatchLabel {
            id: line

            visible: row.hasLine
            text: row.cell.line.text
            match: row.cell.line.match
            size: Theme.captionSize
            color: Theme.ink2
            elide: row.wraps ? Text.ElideNone : Text.ElideRight
            wrapMode: row.wraps ? Text.Wrap : Text.NoWrap
            width: Math.max(0, row.stacked ? row.room : row.room - (row.cell.console !== "" ? owner.width + row.gap : 0))
            x: row.placeWithin(0, width)
            // From right to left, the marks around a code come from another face, which would push the line down.
            y: name.height + (row.stacked ? 0 : owner.baselineOffset - baselineOffset)
            Accessible.ignored: true
        }
        StateWord {
            id: state

            visible: row.hasState
            word: row.cell.state.text
            role: row.cell.state.state
            markLeads: row.stacked
            wraps: row.stacked
            platePadding: row.stacked ? 2 : 0
            width: row.stacked ? row.room : Math.min(implicitWidth, Math.round(row.room * 0.5))
            // x and not anchors: an item whose anchor changes from one side to the other loses its width.
            x: row.placeWithin(row.stacked ? 0 : row.room - width, width)
            y: row.stacked ? words.lines : Math.round((name.lineHeight - height) / 2)
            Accessible.ignored: true
        }
        Label {
            id: count

            visible: row.cell.count !== ""
            text: row.cell.count
            size: Theme.stateSize
            color: Theme.ink2
            x: row.placeWithin(row.room - width, width)
            y: Math.round((name.lineHeight - height) / 2)
            Accessible.ignored: true
        }
        Label {
            id: owner

            visible: row.cell.console !== ""
            text: row.cell.console
            size: Theme.captionSize
            color: Theme.ink2
            elide: row.stacked ? Text.ElideNone : Text.ElideMiddle
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            horizontalAlignment: row.stacked ? Text.AlignLeft : Text.AlignRight
            // Next to a short line, a long console's name is whole.
            width: row.stacked ? row.room
                               : Math.min(Math.ceil(consoleMeasure.advanceWidth) + 1,
                                          Math.max(Math.round(row.room * 0.45),
                                                   Math.floor(row.room - lineMeasure.advanceWidth) - row.gap))
            x: row.placeWithin(row.stacked ? 0 : row.room - width, width)
            y: row.stacked ? words.consoleY : name.height
            Accessible.ignored: true
        }
    }
    Chevron {
        visible: row.cell.leadsOn
        chosen: row.chosen
        x: row.place(row.width - Theme.rowEnd - width, width)
        anchors.verticalCenter: parent.verticalCenter
    }
}
