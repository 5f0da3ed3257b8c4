// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The mark of a row that leads on. The mark's ink ends at the item's edge: the picture's own margins hang out on both
/// sides.
Item {
    id: chevron

    /// Whether what the row leads to is shown beside it.
    property bool chosen: false

    implicitWidth: 10
    implicitHeight: 24

    Icon {
        name: "chevron"
        color: chevron.chosen ? Theme.accentInk : Theme.faint
        directional: true
        x: Theme.mirrored ? -8 : -6
    }
}
