// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The text above a card.
Item {
    id: header

    property string text
    /// What stands at the end, a count as a rule.
    property string detail
    /// A second line, below a title that is larger then.
    property string note
    /// Points above the text; the first header of a page stands 12 below the bar.
    property real space: Theme.sectionGap

    /// Set by the SectionHeaderMore.
    property real detailWidth: 0
    property real detailHeight: 0
    property real noteHeight: 0
    readonly property alias shownText: label.text
    readonly property alias shownFont: label.font

    implicitHeight: space + label.implicitHeight + detailHeight + noteHeight + 8
    Accessible.role: Accessible.Heading
    Accessible.name: Sentence.joined([text, note, detail])

    Label {
        id: label

        // A console may send line breaks or a very long name; the header shows one line, or two of large text, and no
        // more text than a line can hold.
        text: header.text.slice(0, 300).replace(/\s+/g, " ").trim()
        size: header.note !== "" ? Theme.stateSize : Theme.captionSize
        color: header.note !== "" ? Theme.ink : Theme.ink2
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        anchors.right: parent.right
        anchors.rightMargin: header.detailWidth > 0 ? Theme.rowStart + header.detailWidth + 12 : Theme.rowEnd
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8 + header.detailHeight + header.noteHeight
        wrapMode: Theme.stacked ? Text.Wrap : Text.NoWrap
        maximumLineCount: Theme.stacked ? 2 : 1
        elide: Theme.stacked ? Text.ElideRight : Text.ElideMiddle
        Accessible.ignored: true
    }
    LaterItem {
        anchors.fill: parent
        wanted: header.detail !== "" || header.note !== ""
        source: "qrc:/Lodestar/Kit/SectionHeaderMore.qml"
        subject: header
    }
}
