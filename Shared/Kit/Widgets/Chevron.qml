// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The mark of a row that leads on. The mark's ink ends at the item's edge: the picture's own margins hang out on both
/// sides.
Item {
    implicitWidth: 10
    implicitHeight: 24

    Icon {
        name: "chevron"
        color: Theme.faint
        directional: true
        x: Theme.mirrored ? -8 : -6
    }
}
