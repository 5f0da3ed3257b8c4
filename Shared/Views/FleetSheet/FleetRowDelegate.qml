// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A row of a fleet sheet: a name over an address, and at the end a state over a note. With large text the state and the
/// note stand below the address. A row that does something is that text alone.
TableCell {
    id: row

    required property fleetRowCell cell

    readonly property bool stacked: Theme.stacked
    readonly property bool acts: cell.action !== ""
    readonly property real room: Math.max(0, width - Theme.rowStart - Theme.rowEnd)
    readonly property int gap: 12
    readonly property bool hasWord: cell.word !== ""

    accessibleText: cell.accessibleText
    selectable: acts
    implicitHeight: acts ? Math.round(44 * Theme.textScale)
                         : Math.max(Math.round(50 * Theme.textScale), words.height + Math.round(10 * Theme.textScale))

    /// Maps a distance from the words' start to x, for either text direction.
    function place(start: real, extent: real): real {
        return Theme.mirrored ? words.width - start - extent : start;
    }

    Label {
        visible: row.acts
        text: row.cell.action
        size: Theme.stateSize
        color: Theme.accentInk
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        anchors.verticalCenter: parent.verticalCenter
        width: row.room
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    // Measured separately: the label's implicit width depends on its width, which depends on this. One point is added
    // because the layout may round glyph widths up.
    TextMetrics {
        id: noteMeasure

        font: note.font
        text: row.cell.note
    }
    Item {
        id: words

        readonly property real wordY: row.stacked ? name.height + address.height : Math.round((name.lineHeight - word.height) / 2)
        readonly property real noteY: row.stacked ? wordY + (row.hasWord ? word.height : 0) : name.height

        visible: !row.acts
        x: Theme.mirrored ? Theme.rowEnd : Theme.rowStart
        width: row.room
        height: row.stacked ? noteY + (note.visible ? note.height : 0) : name.height + address.height
        y: Math.round((row.height - height) / 2)

        Label {
            id: name

            text: row.cell.name
            // Without a word at the end, this may be a sentence.
            elide: row.stacked ? Text.ElideNone : row.hasWord ? Text.ElideMiddle : Text.ElideRight
            wrapMode: row.stacked || !row.hasWord ? Text.Wrap : Text.NoWrap
            maximumLineCount: row.stacked || row.hasWord ? 1000 : 2
            width: row.stacked || !row.hasWord ? row.room : Math.max(0, row.room - word.width - word.markRoom - row.gap)
            x: row.place(0, width)
            Accessible.ignored: true
        }
        StateWord {
            id: word

            /// Points that a spinner takes beside the word.
            readonly property real markRoom: row.cell.working ? spinner.width + 4 : 0

            visible: row.hasWord
            word: row.cell.word
            role: row.cell.state
            mark: row.cell.working ? "" : Theme.stateMark(row.cell.state)
            markLeads: row.stacked
            wraps: row.stacked
            platePadding: 0
            width: Math.min(implicitWidth, row.stacked ? row.room - markRoom : Math.round(row.room * 0.5))
            x: row.place(row.stacked ? markRoom : row.room - markRoom - width, width)
            y: words.wordY
            Accessible.ignored: true
        }
        Spinner {
            id: spinner

            running: row.cell.working
            size: Math.round(16 * Theme.badgeScale)
            x: row.place(row.stacked ? 0 : row.room - width + 2, width)
            y: words.wordY + Math.round((word.height - height) / 2)
            Accessible.ignored: true
        }
        Label {
            id: address

            text: row.cell.address
            size: Theme.captionSize
            color: Theme.ink2
            elide: row.stacked ? Text.ElideNone : Text.ElideMiddle
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            width: row.stacked || !note.visible ? row.room : Math.max(0, row.room - note.x2 - row.gap)
            x: row.place(0, width)
            y: name.height
            Privacy.covered: true
            Accessible.ignored: true
        }
        Label {
            id: note

            readonly property real markRoom: row.cell.incomplete ? shape.width + 6 : 0
            readonly property real x2: width + markRoom

            visible: row.cell.note !== ""
            text: row.cell.note
            size: Theme.captionSize
            color: row.cell.incomplete ? Theme.systemOrange : Theme.ink2
            shrinks: true
            fontSizeMode: row.stacked ? Text.FixedSize : Text.HorizontalFit
            minimumPixelSize: 10
            elide: row.stacked ? Text.ElideNone : Text.ElideRight
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            horizontalAlignment: row.stacked ? Text.AlignLeft : Text.AlignRight
            width: Math.min(Math.ceil(noteMeasure.advanceWidth) + 1,
                            row.stacked ? row.room - markRoom : Math.round(row.room * 0.55))
            x: row.place(row.stacked ? markRoom : row.room - width, width)
            y: words.noteY
            Accessible.ignored: true
        }
        StateMark {
            id: shape

            visible: row.cell.incomplete
            mark: row.cell.incomplete ? "incomplete" : ""
            color: Theme.systemOrange
            x: row.place(row.stacked ? 0 : row.room - note.x2, width)
            y: note.y + Math.round((note.lineHeight - height) / 2)
        }
    }
}
