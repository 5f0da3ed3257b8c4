// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// One dot per page, the current one longer. A tap goes to the page of the nearest dot, because dots are far smaller
/// than a finger.
Item {
    id: control

    property PageControlOutlet outlet: null

    // A screen reader turns pages by writing this property: the item's role offers the actions for that.
    property int value: 0
    readonly property int current: outlet !== null ? outlet.currentPage + 1 : 0
    readonly property int minimumValue: 1
    readonly property int maximumValue: outlet !== null ? outlet.numberOfPages : 1
    readonly property int stepSize: 1

    implicitWidth: dots.width + Theme.target - 8
    implicitHeight: Theme.target
    Accessible.role: Accessible.Slider
    Accessible.name: qsTr("Page %1 of %2").arg(value).arg(maximumValue)
    onCurrentChanged: value = current
    onValueChanged: {
        if (value !== current) {
            turnTo(Math.max(minimumValue, Math.min(value, maximumValue)) - 1);
            value = current;
        }
    }

    function turnTo(page: int) {
        if (outlet !== null) {
            outlet.currentPage = page;
        }
    }
    function nearest(x: real): int {
        let found = 0;
        let least = width;
        for (let index = 0; index < marks.count; ++index) {
            const mark = marks.itemAt(index);
            const distance = Math.abs(mark.x + mark.width / 2 - x);
            if (distance < least) {
                found = index;
                least = distance;
            }
        }
        return found;
    }

    Row {
        id: dots

        anchors.centerIn: parent
        spacing: 10

        Repeater {
            id: marks

            model: control.outlet !== null ? control.outlet.numberOfPages : 0

            Rectangle {
                required property int index
                readonly property bool current: index === control.current - 1

                width: current ? 20 : 8
                height: 8
                radius: 4
                color: current ? control.outlet?.currentPageIndicatorTintColor ?? Theme.accent
                               : control.outlet?.pageIndicatorTintColor ?? Theme.faint

                Behavior on width {
                    NumberAnimation { duration: Theme.pressOut }
                }
            }
        }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: (mouse) => control.turnTo(control.nearest(mouse.x - dots.x))
    }
}
