// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A drawing of the application by its resource name, tinted, sharp on every screen. Silent: what it stands on speaks.
Image {
    id: icon

    required property string name
    property real size: 24
    property color color: Theme.accentInk
    /// Points somewhere, so that it turns round where text runs from right to left.
    property bool directional: false

    readonly property int pixels: Math.ceil(size * Screen.devicePixelRatio)

    width: size
    height: size
    // What is not seen is not drawn either.
    source: name === "" || !visible ? "" : "image://icon/" + name + "/" + color.toString().substring(1)
    sourceSize.width: pixels
    sourceSize.height: pixels
    mirror: directional && Theme.mirrored
    Accessible.ignored: true
}
