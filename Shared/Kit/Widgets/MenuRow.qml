// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A row of a fixed menu: a drawing, a title, optionally a count or note, a chevron where it leads on. What it holds
/// stands at its end. One that only rests, or whose own control is what one presses, is not pressable.
Pressable {
    id: row

    property string iconName
    property color iconColor: Theme.accentInk
    property color ink: Theme.ink
    property string detail
    property bool chevron: true
    /// Looks as if it cannot be chosen: by itself when disabled. A table's row draws this one disabled and takes the press.
    property bool greyed: !enabled
    property int rowHeight: 52
    /// A hairline on its upper edge, where no GroupCard draws it.
    property bool separator: false
    /// Draws its own press, pointer and focus. A table's row does so for the one that it holds.
    property bool surfaced: true
    default property alias accessory: accessories.data

    /// Looks pressed.
    property bool down: pressed

    readonly property bool pressedLook: pressable && down
    readonly property bool stacked: Theme.stacked && detail !== ""
    readonly property bool beside: !Theme.stacked && detail !== ""
    readonly property real textStart: iconName === "" ? Theme.rowStart : 60

    implicitHeight: Math.max(Math.round(rowHeight * Theme.textScale),
                             titleLabel.implicitHeight + (stacked ? detailLabel.implicitHeight : 0) + 16)
    width: parent !== null ? parent.width : implicitWidth
    Accessible.role: pressable ? Accessible.Button : Accessible.StaticText
    Accessible.name: text + (detail === "" ? "" : ", " + detail)

    Rectangle {
        anchors.fill: parent
        visible: row.surfaced
        color: row.pressedLook ? Theme.pressed : row.pressable && row.hovered && row.enabled ? Theme.hovered : "transparent"
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
            // Not by its being visible, which changes with what the row is in.
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
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
            }
        }
    }
}
