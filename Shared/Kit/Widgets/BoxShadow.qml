// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The shadow of a rounded box of this item's size.
Item {
    id: shadow

    property int radius: Theme.sheetRadius
    property int blur: 40
    property real offsetY: 12
    /// Opacity of the shadow at its darkest.
    property real strength: Theme.dark ? 0.6 : 0.2

    BorderImage {
        readonly property color shade: Qt.rgba(Theme.shade.r, Theme.shade.g, Theme.shade.b, shadow.strength)
        readonly property int edge: shadow.radius + 2 * shadow.blur

        x: -shadow.blur
        y: -shadow.blur + shadow.offsetY
        width: shadow.width + 2 * shadow.blur
        height: shadow.height + 2 * shadow.blur
        source: "image://shadow/" + shadow.radius + "/" + shadow.blur + "/" + shade.toString().substring(1)
        border { left: edge; right: edge; top: edge; bottom: edge }
    }
}
