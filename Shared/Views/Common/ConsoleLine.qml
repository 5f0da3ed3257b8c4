// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The line above a console's list: the console, and when the list was read. Without a mark it is no more than the
/// list's first gap.
Item {
    id: line

    required property string console
    required property readingMark mark
    /// Points above the first card without a mark.
    property real gap: 8
    property real sideMargin: 0

    readonly property bool shown: mark.text !== ""
    readonly property bool stacked: Theme.stacked
    readonly property real room: width - 2 * sideMargin - 2 * Theme.rowStart

    implicitHeight: !shown ? gap : 2 + (stacked ? name.height + age.height : Math.max(name.height, age.height)) + 8
    Accessible.role: Accessible.StaticText
    Accessible.name: Sentence.joined([console, mark.spoken])
    Accessible.ignored: !shown

    Label {
        id: name

        visible: line.shown
        // A console may send line breaks or a very long name.
        text: line.console.slice(0, 300).replace(/\s+/g, " ").trim()
        size: Theme.captionSize
        color: Theme.ink2
        anchors.left: parent.left
        anchors.leftMargin: line.sideMargin + Theme.rowStart
        y: 2
        width: line.stacked ? line.room : Math.max(0, line.room - age.width - 12)
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
    ReadingLabel {
        id: age

        mark: line.mark
        grounded: true
        atEnd: !line.stacked
        room: line.stacked ? line.room : line.room * 0.6
        x: (line.stacked === Theme.mirrored) ? line.width - width - line.sideMargin - Theme.rowStart
                                             : line.sideMargin + Theme.rowStart
        y: 2 + (line.stacked ? name.height : 0)
    }
}
