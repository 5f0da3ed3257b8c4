// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

TableCell {
    id: cell

    required property var cell

    readonly property bool stacked: Theme.stacked

    accessibleText: cell.cell.name + ", " + cell.cell.state
    selectable: cell.cell.online
    swipeButtons: [{"title": "Delete", "role": Role.Button.Destructive}, {"title": "Edit", "role": Role.Button.Quiet}]
    leadingSwipeButtons: cell.cell.badge === "" ? [] : [{"title": "Good", "role": Role.Button.Standard, "imageName": "check"}]
    implicitHeight: stacked ? name.implicitHeight + state.implicitHeight + 20 : 0

    Icon {
        id: badge

        visible: cell.cell.badge !== ""
        name: cell.cell.badge
        size: 20 * Theme.badgeScale
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        y: cell.stacked ? 10 + (name.implicitHeight - height) / 2 : (parent.height - height) / 2
    }
    Label {
        id: name

        text: cell.cell.name
        elide: cell.stacked ? Text.ElideNone : Text.ElideMiddle
        wrapMode: cell.stacked ? Text.WrapAnywhere : Text.NoWrap
        x: Theme.mirrored ? parent.width - start - width : start
        width: parent.width - start - (cell.stacked ? 15 : state.implicitWidth + 27)

        readonly property real start: badge.visible ? 25 + badge.width : Theme.rowStart

        y: cell.stacked ? 10 : (parent.height - height) / 2
    }
    StateWord {
        id: state

        word: cell.cell.state
        role: cell.cell.role
        markLeads: cell.stacked
        x: cell.stacked ? (Theme.mirrored ? name.x + name.width - width : name.x)
                        : Theme.mirrored ? 15 : parent.width - width - 15
        y: cell.stacked ? name.y + name.height : (parent.height - height) / 2
    }
}
