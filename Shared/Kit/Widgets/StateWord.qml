// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A state as word, colour and shape. The mark stands before the word at a row's start and after it at a row's end. The
/// dark red of errors is hard to read on cards, so a plate lies behind it. The plate's padding is not part of the
/// item's size, so that the word keeps its place.
Item {
    id: state

    required property string word
    /// One of Role.State.
    required property int role
    /// Empty for none.
    property string mark: Theme.stateMark(role)
    property bool markLeads: false
    property int size: Theme.stateSize
    readonly property bool plated: role === Role.State.Error
    property bool wraps: false
    /// Points of the plate above and below the word; smaller where another line is near.
    property int platePadding: 2
    property real scaleFactor: Theme.textScale

    readonly property color ink: Theme.stateInk(role)
    readonly property real gap: scaleFactor >= 1.5 ? 10 : 6
    readonly property real markSpace: mark === "" ? 0 : markItem.width + gap
    // One point more than measured, because the layout may round glyph widths up.
    readonly property real wish: Math.ceil(Math.max(measure.advanceWidth, measure.boundingRect.width)) + 1 + markSpace
    readonly property real used: Math.min(width, wish)

    /// Maps a distance from the item's start to x, for either text direction.
    function place(start: real, extent: real): real {
        return Theme.mirrored ? width - start - extent : start;
    }

    implicitWidth: wish
    implicitHeight: label.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: word

    // The word is measured separately: the label's implicit width depends on its width, which depends on this.
    TextMetrics {
        id: measure

        font: label.font
        text: state.word
    }
    Rectangle {
        visible: state.plated && state.word !== ""
        x: state.place(-8, width)
        y: -state.platePadding * state.scaleFactor
        width: state.used + 16
        height: state.height + 2 * state.platePadding * state.scaleFactor
        radius: Theme.plateRadius
        color: Theme.plate
    }
    StateMark {
        id: markItem

        mark: state.mark
        color: state.ink
        scaleFactor: state.scaleFactor
        x: state.place(state.markLeads ? 0 : state.used - width, width)
        y: (label.lineHeight - height) / 2
    }
    Label {
        id: label

        text: state.word
        size: state.size
        scaleFactor: state.scaleFactor
        color: state.ink
        // Close to its mark, whichever side that is on.
        horizontalAlignment: state.markLeads ? Text.AlignLeft : Text.AlignRight
        elide: state.wraps ? Text.ElideNone : Text.ElideMiddle
        wrapMode: state.wraps ? Text.Wrap : Text.NoWrap
        width: state.used - state.markSpace
        x: state.place(state.markLeads ? state.markSpace : 0, width)
        Accessible.ignored: true
    }
}
