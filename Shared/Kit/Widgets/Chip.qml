// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A choice that is on or off, among others in a Flow. It is not told by colour alone: a chip that is on has a ring and
/// a tick.
Pressable {
    id: chip

    property bool on: false
    /// A number after the text; empty for none.
    property string count
    /// Colour of a stroke before the text, for a chip that stands for a line of a chart; transparent for none.
    property color stroke: "transparent"
    /// The widest that the chip may be; its text elides.
    property real room: Infinity

    readonly property real scaleFactor: Theme.textScale
    readonly property color restingInk: on ? Theme.accentInk : Theme.ink2
    readonly property color ink: hovered ? Theme.hoverInk(restingInk) : restingInk
    readonly property real tickSpace: on ? tick.width + 6 : 0
    readonly property real strokeSpace: stroke.a > 0 ? line.width + 6 : 0
    readonly property real countSpace: count !== "" ? number.implicitWidth + 6 : 0
    signal toggled()

    implicitWidth: Math.min(room, 24 + tickSpace + strokeSpace + Math.ceil(measure.advanceWidth) + 1 + countSpace)
    implicitHeight: Math.max(36, Math.round(20 * scaleFactor) + 16)
    Accessible.role: Accessible.CheckBox
    Accessible.name: Sentence.joined([text, count])
    Accessible.checkable: true
    Accessible.checked: on
    onClicked: toggled()

    TextMetrics {
        id: measure

        font: label.font
        text: chip.text
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.segmentRadius
        color: chip.on ? "transparent" : chip.pressed ? Theme.pressed : Theme.sheetWell
        border.width: chip.on ? 1.5 : Theme.outlineWidth
        border.color: chip.on ? Theme.accentInk : Theme.outline
    }
    HoverWash {
        anchors.fill: parent
        radius: Theme.segmentRadius
        shown: chip.hovered
    }
    FocusRing {
        anchors.fill: parent
        radius: Theme.segmentRadius
        shown: chip.visualFocus
    }
    Row {
        x: Theme.mirrored ? chip.width - width - 12 : 12
        spacing: 6
        anchors.verticalCenter: parent.verticalCenter
        layoutDirection: Theme.mirrored ? Qt.RightToLeft : Qt.LeftToRight
        LayoutMirroring.enabled: false
        opacity: chip.pressed ? 0.55 : 1

        Icon {
            id: tick

            name: "check"
            visible: chip.on
            color: chip.ink
            size: Math.round(20 * Math.min(1.5, chip.scaleFactor))
            anchors.verticalCenter: parent.verticalCenter
        }
        Rectangle {
            id: line

            visible: chip.stroke.a > 0
            width: 16
            height: 2
            radius: 1
            color: chip.stroke
            anchors.verticalCenter: parent.verticalCenter
        }
        Label {
            id: label

            text: chip.text
            size: Theme.stateSize
            color: chip.ink
            width: Math.min(Math.ceil(measure.advanceWidth) + 1, chip.room - 24 - chip.tickSpace - chip.strokeSpace - chip.countSpace)
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
        Label {
            id: number

            visible: chip.count !== ""
            text: chip.count
            size: Theme.stateSize
            color: chip.ink
            Accessible.ignored: true
        }
    }
}
