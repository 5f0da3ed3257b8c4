// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The text above a card.
Item {
    id: header

    property string text
    /// Points above the text; the first header of a page stands 12 below the bar.
    property real space: Theme.sectionGap

    implicitHeight: space + label.implicitHeight + 8
    Accessible.role: Accessible.Heading
    Accessible.name: text

    Label {
        id: label

        // A console may send line breaks or a very long name; the header shows one line and no more text than a line
        // can hold.
        text: header.text.slice(0, 300).replace(/\s+/g, " ").trim()
        size: Theme.captionSize
        color: Theme.ink2
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
}
