// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A managed system's menu, with two gauges above it. The gauges are decoration: their figures are fixed and tell
/// nothing of the system. That the two overlap is meant.
MenuScene {
    id: scene

    topSpace: 162

    component Ornament: CircleGauge {
        /// Points from the start of the cards.
        required property real start

        x: Theme.mirrored ? ornaments.width - start - width : start
        y: 28
        total: 100
        clockwise: false
        trackColor: "transparent"
        Accessible.ignored: true
    }

    Item {
        id: ornaments

        // The gauges' places are meant for a phone; on wide pages, they keep their place relative to the cards.
        x: Theme.sideMargin(scene.width, Theme.measure) - Theme.cardMargin(0)
        y: -scene.scrolledBy
        width: scene.width - 2 * x
        height: scene.topSpace

        Ornament {
            start: 15
            current: 90
            strokeColor: Qt.rgba(245 / 255, 94 / 255, 78 / 255, 1)
        }
        Ornament {
            start: 85
            current: 60
            strokeColor: Qt.rgba(77 / 255, 186 / 255, 122 / 255, 1)
        }
    }
}
