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

    readonly property color tint: controller.selectedImageTintColor.valid ? controller.selectedImageTintColor : Theme.accent

    implicitWidth: rail ? Theme.railWidth : 0
    implicitHeight: rail ? 0 : Theme.tabBarHeight
    color: Theme.card
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Screens")

    function step(by: int) {
        const index = controller.selectedIndex + by;
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
                Keys.onLeftPressed: bar.step(bar.rail ? 0 : Theme.mirrored ? 1 : -1)
                Keys.onRightPressed: bar.step(bar.rail ? 0 : Theme.mirrored ? -1 : 1)
                Keys.onUpPressed: bar.step(bar.rail ? -1 : 0)
                Keys.onDownPressed: bar.step(bar.rail ? 1 : 0)

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
                Column {
                    id: face

                    anchors.centerIn: parent
                    width: parent.width
                    spacing: 2
                    opacity: tab.pressed && !tab.selected ? 0.55 : 1

                    Icon {
                        id: glyph

                        name: tab.imageName === "" ? "" : tab.selected ? tab.imageName + "_selected" : tab.imageName
                        color: tab.selected ? bar.tint : Theme.ink3
                        anchors.horizontalCenter: parent.horizontalCenter
                    }
                    Label {
                        text: tab.text
                        size: Theme.axisSize
                        scaleFactor: Theme.barScale
                        color: tab.selected ? Theme.tabSelected : tab.hovered ? Theme.ink2 : Theme.ink3
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        elide: Text.ElideRight
                        Accessible.ignored: true
                    }
                }
                TabBadge {
                    text: tab.badge
                    x: tab.width / 2 + (Theme.mirrored ? -4 - width : 4)
                    y: face.y + glyph.y - 4
                }
            }
        }
    }
}
