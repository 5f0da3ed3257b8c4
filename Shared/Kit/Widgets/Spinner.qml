// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// An activity indicator: 28 points on an empty screen, 16 in place of a value. With an outlet, the outlet starts,
/// stops and hides it. Where motion is reduced, it pulses and does not turn.
Icon {
    id: spinner

    property IndicatorOutlet outlet: null
    property bool running: outlet === null || (outlet.animating && !outlet.hidden)

    name: "spinner"
    size: 28
    color: Theme.ink3
    visible: running
    Accessible.ignored: false
    Accessible.role: Accessible.Animation
    Accessible.name: qsTr("Loading")

    RotationAnimation on rotation {
        running: spinner.running && spinner.visible && !Theme.reducedMotion
        loops: Animation.Infinite
        from: 0
        to: 360
        duration: Theme.spinnerTurn
    }
    SequentialAnimation on opacity {
        running: spinner.running && spinner.visible && Theme.reducedMotion
        loops: Animation.Infinite
        NumberAnimation { from: 1; to: 0.3; duration: Theme.spinnerTurn / 2 }
        NumberAnimation { from: 0.3; to: 1; duration: Theme.spinnerTurn / 2 }
    }
}
