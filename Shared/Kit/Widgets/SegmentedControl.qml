// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A few choices side by side, one of them chosen. `activated` is sent for the user's choice only.
Rectangle {
    id: control

    required property var titles
    /// The name of the control for screen readers.
    required property string label
    property int currentIndex: 0
    /// Bars use a smaller factor: they stop growing earlier than other text.
    property real scaleFactor: Theme.textScale
    signal activated(int index)

    implicitHeight: Math.max(40, Math.round(20 * scaleFactor) + 16)
    radius: Theme.fieldRadius
    color: Theme.well
    border.width: Theme.outlineWidth
    border.color: Theme.outline
    Accessible.role: Accessible.PageTabList
    Accessible.name: label

    /// The keyboard goes to the chosen segment, also where what it shows would take it: Tab and the arrows go on here.
    function choose(index: int, byKeys: bool) {
        if (index !== currentIndex && index >= 0 && index < titles.length) {
            currentIndex = index;
            activated(index);
            segments.itemAt(index)?.forceActiveFocus(byKeys ? Qt.TabFocusReason : Qt.MouseFocusReason);
        }
    }

    Row {
        anchors.fill: parent
        anchors.margins: 2

        Repeater {
            id: segments

            model: control.titles

            Pressable {
                id: segment

                required property int index
                required property string modelData
                readonly property bool chosen: index === control.currentIndex

                width: (control.width - 4) / control.titles.length
                height: control.height - 4
                text: modelData
                Accessible.role: Accessible.PageTab
                Accessible.name: text
                Accessible.selectable: true
                Accessible.selected: chosen
                onClicked: control.choose(index, visualFocus)
                Keys.onLeftPressed: control.choose(index + (Theme.mirrored ? 1 : -1), true)
                Keys.onRightPressed: control.choose(index + (Theme.mirrored ? -1 : 1), true)

                BoxShadow {
                    visible: segment.chosen && !Theme.dark
                    radius: Theme.segmentRadius
                    blur: 3
                    offsetY: 1
                    strength: 0.14
                    anchors.fill: parent
                }
                Rectangle {
                    anchors.fill: parent
                    visible: segment.chosen
                    radius: Theme.segmentRadius
                    color: Theme.segment
                    border.width: Theme.strong ? 2 : 0
                    border.color: Theme.ink
                }
                HoverWash {
                    anchors.fill: parent
                    radius: Theme.segmentRadius
                    shown: segment.hovered && !segment.chosen
                }
                FocusRing {
                    anchors.fill: parent
                    radius: Theme.segmentRadius
                    shown: segment.visualFocus
                }
                Label {
                    text: segment.text
                    size: Theme.stateSize
                    scaleFactor: control.scaleFactor
                    color: segment.chosen ? Theme.ink : Theme.ink2
                    opacity: segment.pressed && !segment.chosen ? 0.55 : 1
                    anchors.verticalCenter: parent.verticalCenter
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    // A segment cannot grow; a long word is drawn smaller.
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 10
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
            }
        }
    }
}
