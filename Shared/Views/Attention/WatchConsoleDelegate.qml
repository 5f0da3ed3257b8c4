// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A console that may be watched.
TableCell {
    id: row

    required property watchConsoleCell cell

    accessibleText: Sentence.joined([cell.name, cell.watched ? qsTr("watched") : qsTr("not watched")])
    implicitHeight: name.implicitHeight + 16

    Label {
        id: name

        text: row.cell.name
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        anchors.right: tick.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
    Icon {
        id: tick

        opacity: row.cell.watched ? 1 : 0
        name: "check"
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd
        anchors.verticalCenter: parent.verticalCenter
    }
}
