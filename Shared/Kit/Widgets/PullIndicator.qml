// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The mark that a pull uncovers: the refresh arrow turns and becomes blue as the pull approaches the threshold, then
/// goes on turning until the list is back.
Item {
    id: indicator

    required property real overshoot
    required property bool refreshing
    readonly property int threshold: 72
    readonly property real progress: Math.max(0, overshoot / threshold)
    property bool armed: false

    width: 28
    height: 28
    y: Math.max(4, overshoot / 2 - 14)
    opacity: Math.min(1, progress * 1.4)
    Accessible.role: Accessible.Animation
    Accessible.name: refreshing ? qsTr("Refreshing") : qsTr("Pull to refresh")

    onProgressChanged: {
        if (progress >= 1) {
            armed = true;
        } else if (progress === 0) {
            armed = false;
        }
    }

    Icon {
        visible: !spinner.visible
        name: "refresh"
        color: indicator.progress >= 1 ? Theme.accentInk : Theme.ink3
        rotation: Math.min(1, indicator.progress) * 270
        anchors.centerIn: parent
    }
    Spinner {
        id: spinner

        visible: indicator.refreshing || (indicator.armed && indicator.progress < 1)
        running: visible
    }
}
