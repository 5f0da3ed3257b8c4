// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The visible part of a PullIndicator: the refresh arrow turns and becomes blue as the pull approaches the threshold,
/// then goes on turning until the list is back.
Item {
    id: mark

    required property PullIndicator subject
    readonly property real progress: subject.progress
    readonly property bool refreshing: subject.refreshing
    property bool armed: false

    y: Math.max(4, subject.overshoot / 2 - 14)
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
        color: mark.progress >= 1 ? Theme.accentInk : Theme.ink3
        rotation: Math.min(1, mark.progress) * 270
        anchors.centerIn: parent
    }
    Spinner {
        id: spinner

        visible: mark.refreshing || (mark.armed && mark.progress < 1)
        running: visible
    }
}
