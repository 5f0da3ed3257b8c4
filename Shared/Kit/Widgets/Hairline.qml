// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A line of one device pixel along x or y, or of a point where contrast is high. It is a picture because the software renderer rounds rectangles to whole
/// points.
Image {
    property color color: Theme.hairline

    property bool vertical: false
    // Before the item is in a window, the ratio may be 0.
    readonly property real thickness: Theme.strong ? 1 : 1 / Math.max(1, Screen.devicePixelRatio)

    width: vertical ? thickness : implicitWidth
    height: vertical ? implicitHeight : thickness
    source: "image://icon/pixel/" + color.toString().substring(1)
    sourceSize.width: 1
    sourceSize.height: 1
    smooth: false
    Accessible.ignored: true
}
