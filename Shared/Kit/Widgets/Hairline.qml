// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// One device pixel, along x or y. A picture, because the software renderer rounds rectangles to whole points.
Image {
    property color color: Theme.hairline

    property bool vertical: false
    // Outside a window the ratio is not known yet.
    readonly property real thickness: 1 / Math.max(1, Screen.devicePixelRatio)

    width: vertical ? thickness : implicitWidth
    height: vertical ? implicitHeight : thickness
    source: "image://icon/pixel/" + color.toString().substring(1)
    sourceSize.width: 1
    sourceSize.height: 1
    smooth: false
    Accessible.ignored: true
}
