// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The process's tip: a small plate below the button over which the pointer rests, or above it near the lower edge. It
/// takes no press, and readers know the button's name already. Lay it over all that has such buttons.
Item {
    id: tip

    readonly property bool shown: Tips.presented
    readonly property Item button: Tips.button
    /// The button's middle when the tip came up; the button may go before the tip does.
    property point spot
    property real reach: 0

    onShownChanged: place()
    onButtonChanged: place()
    Component.onCompleted: place()

    function place() {
        if (shown && button !== null) {
            spot = button.mapToItem(tip, button.width / 2, button.height / 2);
            reach = button.height / 2 + 4;
        }
    }

    Rectangle {
        id: plate

        width: label.width + 20
        height: label.height + 12
        x: Math.max(8, Math.min(tip.spot.x - width / 2, tip.width - width - 8))
        y: tip.spot.y + tip.reach + (tip.spot.y + tip.reach + height <= tip.height ? 0 : -2 * tip.reach - height)
        radius: Theme.plateRadius
        color: Theme.ink
        opacity: tip.shown ? 1 : 0
        visible: opacity > 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.pressOut }
        }

        Label {
            id: label

            text: Tips.text
            size: Theme.captionSize
            scaleFactor: Theme.barScale
            color: Theme.ground
            x: 10
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, tip.width - 36)
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
