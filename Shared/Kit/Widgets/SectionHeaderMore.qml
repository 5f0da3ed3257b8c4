// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// What a SectionHeader may have beside its title: a detail at the end, and a note below.
Item {
    id: more

    required property SectionHeader header

    Binding {
        target: more.header
        property: "detailWidth"
        value: detail.text !== "" ? detail.implicitWidth : 0
    }
    Binding {
        target: more.header
        property: "noteHeight"
        value: note.text !== "" ? note.height : 0
    }
    Label {
        id: detail

        visible: text !== ""
        text: more.header.detail
        size: Theme.captionSize
        color: Theme.ink3
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowStart
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8 + more.header.noteHeight
        Accessible.ignored: true
    }
    Label {
        id: note

        visible: text !== ""
        text: more.header.note.slice(0, 300).replace(/\s+/g, " ").trim()
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
