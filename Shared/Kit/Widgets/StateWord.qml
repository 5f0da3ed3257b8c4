// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A state as word, colour and shape. The mark leads at a row's start and follows at its end. The dark red of errors is
/// hardly readable on cards, so it rides on a plate that hangs out by its padding: the word keeps its place, and what
/// stands beside it sees the size without the plate.
Item {
    id: state

    required property string word
    /// Empty for none.
    property string mark: "good"
    property color color: Theme.successGreen
    property bool markLeads: false
    property int size: Theme.stateSize
    property bool plated: Qt.colorEqual(color, Theme.errorRed)
    property bool wraps: false
    /// Above and below the plated word: less where another line is near.
    property int platePadding: 2
    property real scaleFactor: Theme.textScale

    readonly property color shownColor: Theme.inkFor(color)
    readonly property real gap: scaleFactor >= 1.5 ? 10 : 6
    readonly property real markSpace: mark === "" ? 0 : markItem.width + gap
    // A point more than measured: the layout may round its glyphs up.
    readonly property real wish: Math.ceil(Math.max(measure.advanceWidth, measure.boundingRect.width)) + 1 + markSpace
    readonly property real used: Math.min(width, wish)

    /// From the start of the item to where the system's direction puts it.
    function place(start: real, extent: real): real {
        return Theme.mirrored ? width - start - extent : start;
    }

    implicitWidth: wish
    implicitHeight: label.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: word

    // The label's own implicit width would answer to its width, which answers to this.
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
        color: state.shownColor
        scaleFactor: state.scaleFactor
        x: state.place(state.markLeads ? 0 : state.used - width, width)
        y: (label.lineHeight - height) / 2
    }
    Label {
        id: label

        text: state.word
        size: state.size
        scaleFactor: state.scaleFactor
        color: state.shownColor
        // Close to its mark, whichever side that is on.
        horizontalAlignment: state.markLeads ? Text.AlignLeft : Text.AlignRight
        elide: state.wraps ? Text.ElideNone : Text.ElideMiddle
        wrapMode: state.wraps ? Text.Wrap : Text.NoWrap
        width: state.used - state.markSpace
        x: state.place(state.markLeads ? state.markSpace : 0, width)
        Accessible.ignored: true
    }
}
