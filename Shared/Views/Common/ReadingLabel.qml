// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The mark of something read: its age, quiet, or in orange and with a shape what is old or missing.
Item {
    id: label

    required property readingMark mark
    property color quietColor: Theme.ink2
    /// On the ground and not on a card, which the orange has to know.
    property bool grounded: false
    /// Stands at a line's end and not at its start.
    property bool atEnd: true
    /// The greatest width; a longer text is drawn smaller, and elided at last.
    property real room: Infinity

    readonly property bool urgent: mark.state === Role.State.Alert || mark.state === Role.State.Incomplete
    readonly property color ink: urgent ? (grounded ? Theme.orangeOnGround : Theme.systemOrange)
                                        : mark.state === Role.State.Offline ? Theme.ink3 : quietColor
    readonly property real gap: 6
    readonly property real wanted: words.wanted + (urgent ? shape.width + gap : 0)

    visible: mark.text !== ""
    width: Math.min(wanted, room)
    height: words.height
    baselineOffset: words.baselineOffset

    // Measured apart: the label's implicit width depends on its width, which depends on this. One point is added
    // because the layout may round glyph widths up.
    TextMetrics {
        id: measure

        font: words.font
        text: label.mark.text
    }
    StateMark {
        id: shape

        visible: label.urgent
        mark: label.urgent ? Theme.stateMark(label.mark.state) : ""
        color: label.ink
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
    }
    Label {
        id: words

        readonly property real wanted: Math.ceil(measure.advanceWidth) + 1

        text: label.mark.text
        size: Theme.captionSize
        color: label.ink
        anchors.left: parent.left
        anchors.leftMargin: label.urgent ? shape.width + label.gap : 0
        width: Math.max(0, label.width - (label.urgent ? shape.width + label.gap : 0))
        horizontalAlignment: label.atEnd ? Text.AlignRight : Text.AlignLeft
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
}
