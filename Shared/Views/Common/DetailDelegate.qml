// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Draws a fact: the label over its value, or before it where the list is wide.
TableCell {
    id: row

    required property detailCell cell

    readonly property bool wide: !Theme.stacked && Theme.widthClass(listWidth) !== Theme.compactWidth
    readonly property real column: 240
    readonly property real room: width - Theme.rowStart - Theme.rowEnd - (cell.disclosure ? 24 : 0)

    accessibleText: Sentence.joined([cell.textLabel, cell.detailTextLabel])
    selectable: cell.disclosure
    offersMenu: true
    implicitHeight: Math.max(Math.round((wide ? 50 : 60) * Theme.textScale), facts.height + Math.round(16 * Theme.textScale))

    Item {
        id: facts

        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        width: row.room
        height: row.wide ? Math.max(label.height, value.height) : label.height + value.height
        y: Math.round((row.height - height) / 2)

        Label {
            id: label

            text: row.cell.textLabel
            size: row.wide ? Theme.stateSize : Theme.captionSize
            color: Theme.ink2
            wrapMode: Text.Wrap
            anchors.left: parent.left
            width: row.wide ? row.column : parent.width
            y: row.wide ? value.baselineOffset - baselineOffset : 0
            Accessible.ignored: true
        }
        Label {
            id: value

            text: row.cell.detailTextLabel
            wrapMode: Text.Wrap
            anchors.left: parent.left
            anchors.leftMargin: row.wide ? row.column + 20 : 0
            anchors.right: parent.right
            y: row.wide ? 0 : label.height
            Accessible.ignored: true
        }
    }
    Chevron {
        visible: row.cell.disclosure
        chosen: row.chosen
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd
        anchors.verticalCenter: parent.verticalCenter
    }
}
