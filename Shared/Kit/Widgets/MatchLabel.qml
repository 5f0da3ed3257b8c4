// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A name that marks where it holds what was searched for. It is cut in its middle where it does not fit, or wraps. What
/// stands in the cut is not marked.
Label {
    id: label

    /// Case ignored; empty for none.
    property string match

    readonly property bool isCut: wrapMode === Text.NoWrap && truncated
    readonly property string shown: isCut ? cut.elidedText : text
    readonly property int matchStart: match === "" || lineCount > 1 ? -1 : shown.toLowerCase().indexOf(match.toLowerCase())

    elide: wrapMode === Text.NoWrap ? Text.ElideMiddle : Text.ElideNone

    TextMetrics {
        id: cut

        font: label.font
        text: label.text
        elide: Text.ElideMiddle
        elideWidth: label.width
    }
    TextMetrics {
        id: whole

        font: label.font
        text: label.shown
    }
    TextMetrics {
        id: before

        font: label.font
        text: label.matchStart > 0 ? label.shown.substring(0, label.matchStart) : ""
    }
    TextMetrics {
        id: marked

        font: label.font
        text: label.matchStart >= 0 ? label.shown.substring(label.matchStart, label.matchStart + label.match.length) : ""
    }
    Rectangle {
        // The label's effectiveHorizontalAlignment does not do here: it may change before the label is complete, and then
        // no signal says so. Nor does contentWidth: in a label that is aligned to the right it is the whole width.
        readonly property real textStart: Theme.mirrored ? label.width - whole.advanceWidth : 0

        z: -1
        visible: label.matchStart >= 0
        x: textStart + before.advanceWidth
        y: -1
        width: marked.advanceWidth
        height: label.lineHeight + 2
        radius: 3
        color: Theme.match
    }
}
