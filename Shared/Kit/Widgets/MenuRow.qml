// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A row of a fixed menu: a picture, a title, optionally a count or note, and a chevron where the row leads on. Child
/// items stand at the row's end. A row that leads nowhere, or whose child is the control to press, is not pressable.
Pressable {
    id: row

    property string iconName
    /// Whether the text leaves room for an icon: a row without one stands in line with its neighbours' texts then.
    property bool inset: iconName !== ""
    property color iconColor: Theme.accentInk
    property color ink: Theme.ink
    property string detail
    property bool chevron: true
    /// Whether what the row leads to is shown beside it.
    property bool chosen: false
    /// Draws the row as one that cannot be chosen; by default while it is disabled. A table's row sets this and takes
    /// the press itself.
    property bool greyed: !enabled
    property int rowHeight: 52
    /// Draws a hairline on the upper edge, for rows outside a GroupCard.
    property bool separator: false
    /// Draws the row's own press, hover and focus. A table's row does that itself and sets this to false.
    property bool surfaced: true
    default property alias accessory: accessories.data

    /// Whether the row looks pressed.
    property bool down: pressed

    readonly property bool pressedLook: pressable && down
    readonly property bool stacked: Theme.stacked && detail !== ""
    readonly property bool beside: !Theme.stacked && detail !== ""
    readonly property real textStart: inset ? 60 : Theme.rowStart

    implicitHeight: Math.max(Math.round(rowHeight * Theme.textScale),
                             titleLabel.implicitHeight + (stacked ? detailLabel.implicitHeight : 0) + 16)
    width: parent !== null ? parent.width : implicitWidth
    Accessible.role: pressable ? Accessible.Button : Accessible.StaticText
    Accessible.name: Sentence.joined([text, detail])

    Rectangle {
        anchors.fill: parent
        visible: row.surfaced
        color: row.pressedLook ? Theme.pressed : row.pressable && row.hovered && row.enabled ? Theme.wash : "transparent"
        radius: row.pressedLook ? 0 : Theme.cardRadius

        Behavior on color {
            ColorAnimation { duration: row.pressedLook ? Theme.pressIn : Theme.pressOut }
        }
        FocusRing {
            anchors.fill: parent
            shown: row.visualFocus
        }
        Hairline {
            visible: row.separator && !row.pressedLook
            x: Theme.mirrored ? 15 : 10
            width: parent.width - 25
        }
    }
    Item {
        anchors.fill: parent
        opacity: row.greyed ? 0.6 : 1

        Icon {
            visible: row.iconName !== ""
            name: row.iconName
            color: row.greyed ? Theme.ink3 : row.iconColor
            anchors.left: parent.left
            anchors.leftMargin: Theme.rowStart
            anchors.verticalCenter: parent.verticalCenter
        }
        Column {
            anchors.left: parent.left
            anchors.leftMargin: row.textStart
            anchors.right: row.stacked ? ends.left : detailLabel.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter

            Label {
                id: titleLabel

                text: row.text
                color: row.greyed ? Theme.ink3 : row.ink
                width: parent.width
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Label {
                visible: row.stacked
                text: row.detail
                size: Theme.stateSize
                color: Theme.ink2
                width: parent.width
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        Label {
            id: detailLabel

            visible: row.beside
            text: row.detail
            size: Theme.stateSize
            color: Theme.ink2
            // `visible` would not do in place of `row.beside`: it also changes with the items around the row.
            width: row.beside ? Math.min(implicitWidth, row.width * 0.45) : 0
            anchors.right: ends.left
            anchors.rightMargin: ends.width > 0 ? 12 : 0
            anchors.verticalCenter: parent.verticalCenter
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
        Item {
            id: ends

            anchors.right: parent.right
            anchors.rightMargin: Theme.rowEnd
            width: accessories.width + (arrow.visible ? arrow.width : 0) + (accessories.width > 0 && arrow.visible ? 12 : 0)
            height: parent.height

            Row {
                id: accessories

                anchors.verticalCenter: parent.verticalCenter
            }
            Chevron {
                id: arrow

                visible: row.chevron && !row.greyed
                chosen: row.chosen
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
            }
        }
    }
}
