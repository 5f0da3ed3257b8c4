// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A managed system's menu, with two gauges above it.
MenuScene {
    id: scene

    readonly property MSOverViewController system: controller as MSOverViewController

    topSpace: 162

    Item {
        id: ornament

        // The gauges' frames are meant for a phone; on wide pages, they keep their place relative to the cards.
        x: Theme.sideMargin(scene.width, Theme.measure) - Theme.cardMargin(0)
        y: -scene.scrolledBy
        width: scene.width - 2 * x
        height: scene.topSpace

        Repeater {
            model: scene.system.gauges

            CircleGauge {
                required property gaugeFigure modelData

                x: Theme.mirrored ? ornament.width - modelData.frame.x - width : modelData.frame.x
                y: modelData.frame.y
                width: modelData.frame.width
                height: modelData.frame.height
                total: modelData.total
                current: modelData.current
                clockwise: modelData.clockwise
                strokeColor: modelData.strokeColor
                trackColor: "transparent"
                Accessible.ignored: true
            }
        }
    }
}
