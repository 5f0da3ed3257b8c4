// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Draws a menu's row with a MenuRow; the table takes the press.
TableCell {
    id: row

    required property menuCell cell

    accessibleText: Sentence.joined([cell.title, cell.detail])
    selectable: !cell.rests
    leadsOn: !cell.rests
    implicitHeight: content.implicitHeight

    MenuRow {
        id: content

        anchors.fill: parent
        text: row.cell.title
        iconName: row.cell.imageName
        iconColor: row.cell.rests ? Theme.ink3 : Theme.accentInk
        detail: row.cell.detail
        chevron: !row.cell.rests
        chosen: row.chosen
        enabled: false
        greyed: false
        pressable: false
        surfaced: false
        Accessible.ignored: true
    }
}
