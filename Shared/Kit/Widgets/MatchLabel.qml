// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A name with the searched-for part marked. A name that does not fit is elided, in the middle as a rule, or wraps. A
/// match in the elided part is not marked.
Label {
    id: label

    /// The text to mark, in any case; empty for none.
    property string match

    readonly property bool isCut: wrapMode === Text.NoWrap && truncated
    readonly property string shown: isCut ? cut.elidedText : text
    readonly property int matchStart: match === "" || lineCount > 1 ? -1 : shown.toLowerCase().indexOf(match.toLowerCase())

    elide: wrapMode === Text.NoWrap ? Text.ElideMiddle : Text.ElideNone

    TextMetrics {
        id: cut

        font: label.font
        text: label.text
        elide: label.elide
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
        // The label's effectiveHorizontalAlignment cannot be used: it may change before the label is complete, without
        // a signal. contentWidth cannot either: for a right-aligned label it is the whole width.
        readonly property bool atEnd: Theme.mirrored !== (label.horizontalAlignment === Text.AlignRight)
        readonly property real textStart: atEnd ? label.width - whole.advanceWidth : 0

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
