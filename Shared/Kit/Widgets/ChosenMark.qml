// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The bar at the edge of a row whose screen is shown beside the list. Only its inner corners are round.
Item {
    implicitWidth: 3
    clip: true

    Rectangle {
        x: Theme.mirrored ? 0 : -2
        width: 5
        height: parent.height
        radius: 2
        color: Theme.accent
    }
}
