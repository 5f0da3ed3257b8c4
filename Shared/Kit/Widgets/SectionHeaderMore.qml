// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// What a SectionHeader may have beside its title: a detail at the end, and a note below. A detail that large text leaves
/// no room for stands on a line of its own.
Item {
    id: more

    required property SectionHeader subject

    readonly property bool below: Theme.stacked && detail.visible
                                  && title.advanceWidth + 12 + words.advanceWidth > width - 2 * Theme.rowStart

    TextMetrics {
        id: title

        font: more.subject.shownFont
        text: more.subject.shownText
    }
    TextMetrics {
        id: words

        font: detail.font
        text: detail.text
    }
    Binding {
        target: more.subject
        property: "detailWidth"
        value: detail.visible && !more.below ? detail.implicitWidth : 0
    }
    Binding {
        target: more.subject
        property: "detailHeight"
        value: more.below ? detail.height : 0
    }
    Binding {
        target: more.subject
        property: "noteHeight"
        value: note.text !== "" ? note.height : 0
    }
    Label {
        id: detail

        visible: text !== ""
        text: more.subject.detail
        size: Theme.captionSize
        color: Theme.ink3
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowStart
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8 + more.subject.noteHeight
        width: more.below ? parent.width - 2 * Theme.rowStart : implicitWidth
        wrapMode: more.below ? Text.Wrap : Text.NoWrap
        Accessible.ignored: true
    }
    Label {
        id: note

        visible: text !== ""
        text: more.subject.note.slice(0, 300).replace(/\s+/g, " ").trim()
        size: Theme.captionSize
        color: Theme.ink2
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowStart
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
