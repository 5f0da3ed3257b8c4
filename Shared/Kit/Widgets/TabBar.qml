// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// The tabs of a controller: along the lower edge or, in wide windows, as a rail at the start, below the application's
/// mark.
Rectangle {
    id: bar

    required property TabBarController controller
    property bool rail: false
    /// Whether height is scarce: titles stand beside their pictures then.
    property bool low: false

    readonly property color tint: controller.selectedImageTintColor.valid ? controller.selectedImageTintColor : Theme.accent

    implicitWidth: rail ? Theme.railWidth : 0
    implicitHeight: rail ? 0 : low ? Theme.lowTabBarHeight : Theme.tabBarHeight
    color: Theme.card
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Screens")

    function step(from: int, by: int) {
        const index = from + by;
        if (index >= 0 && index < controller.count) {
            controller.selectedIndex = index;
            tabs.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
        }
    }

    Hairline {
        visible: !bar.rail
        width: parent.width
    }
    Hairline {
        visible: bar.rail
        vertical: true
        height: parent.height
        x: Theme.mirrored ? 0 : parent.width - width
    }
    Icon {
        visible: bar.rail
        name: "app_icon"
        size: 40
        anchors.horizontalCenter: parent.horizontalCenter
        y: 12
    }
    Grid {
        id: grid

        readonly property real tabWidth: bar.rail ? bar.width : Math.min(bar.width / Math.max(1, bar.controller.count),
                                                                         bar.width < 600 ? 195 : 144)

        columns: bar.rail ? 1 : bar.controller.count
        rowSpacing: 8
        anchors.horizontalCenter: parent.horizontalCenter
        y: bar.rail ? 80 : 0

        Repeater {
            id: tabs

            model: bar.controller.count

            Pressable {
                id: tab

                required property int index
                readonly property bool selected: bar.controller.selectedIndex === index
                readonly property string imageName: bar.controller.imageNameAt(index)
                property string badge: bar.controller.badgeAt(index)
                property string spoken: bar.controller.spokenAt(index)

                width: grid.tabWidth
                height: bar.rail ? 64 : bar.height
                text: bar.controller.titleAt(index)
                Accessible.role: Accessible.PageTab
                Accessible.name: spoken
                Accessible.selected: selected
                Accessible.selectable: true
                onClicked: bar.controller.tap(index)
                Keys.onLeftPressed: bar.step(index, bar.rail ? 0 : Theme.mirrored ? 1 : -1)
                Keys.onRightPressed: bar.step(index, bar.rail ? 0 : Theme.mirrored ? -1 : 1)
                Keys.onUpPressed: bar.step(index, bar.rail ? -1 : 0)
                Keys.onDownPressed: bar.step(index, bar.rail ? 1 : 0)

                Connections {
                    target: bar.controller
                    function onBadgeChanged(index: int) {
                        if (index === tab.index) {
                            tab.badge = bar.controller.badgeAt(index);
                            tab.spoken = bar.controller.spokenAt(index);
                        }
                    }
                }
                HoverWash {
                    anchors.fill: parent
                    anchors.margins: 3
                    shown: tab.hovered
                }
                FocusRing {
                    anchors.fill: parent
                    anchors.margins: 3
                    shown: tab.visualFocus
                }
                TextMetrics {
                    id: titleMeasure

                    font: title.font
                    text: title.text
                }
                Item {
                    id: face

                    /// Points between picture and title, enough for the badge; and the title's width beside the picture.
                    readonly property int gap: 14
                    readonly property real besideWidth: Math.min(Math.ceil(titleMeasure.advanceWidth) + 1,
                                                                 tab.width - glyph.width - gap - 16)

                    anchors.centerIn: parent
                    width: bar.low ? glyph.width + gap + besideWidth : tab.width
                    height: bar.low ? glyph.height : glyph.height + 2 + title.height
                    opacity: tab.pressed && !tab.selected ? 0.55 : 1

                    Icon {
                        id: glyph

                        name: tab.imageName === "" ? "" : tab.selected ? tab.imageName + "_selected" : tab.imageName
                        color: tab.selected ? bar.tint : Theme.ink3
                        x: !bar.low ? Math.round((parent.width - width) / 2) : Theme.mirrored ? parent.width - width : 0
                    }
                    Label {
                        id: title

                        text: tab.text
                        size: Theme.axisSize
                        scaleFactor: Theme.barScale
                        color: tab.selected ? Theme.tabSelected : tab.hovered ? Theme.ink2 : Theme.ink3
                        width: bar.low ? face.besideWidth : tab.width
                        x: !bar.low || Theme.mirrored ? 0 : glyph.width + face.gap
                        y: bar.low ? Math.round((parent.height - height) / 2) : glyph.height + 2
                        horizontalAlignment: Text.AlignHCenter
                        fontSizeMode: Text.HorizontalFit
                        minimumPixelSize: 8
                        elide: Text.ElideRight
                        Accessible.ignored: true
                    }
                }
                TabBadge {
                    text: tab.badge
                    x: face.x + glyph.x + glyph.width / 2 + (Theme.mirrored ? -4 - width : 4)
                    y: face.y + glyph.y - 4
                }
            }
        }
    }
}
