// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A tinted picture of the application by its resource name, sharp on every screen. Screen readers skip it: the control
/// that holds it has the name.
Image {
    id: icon

    required property string name
    property real size: 24
    property color color: Theme.accentInk
    /// Mirrors the picture where text runs from right to left, for pictures that point somewhere.
    property bool directional: false

    readonly property int pixels: Math.ceil(size * Screen.devicePixelRatio)

    width: size
    height: size
    // A hidden icon loads no picture.
    source: name === "" || !visible ? "" : "image://icon/" + name + "/" + color.toString().substring(1)
    sourceSize.width: pixels
    sourceSize.height: pixels
    mirror: directional && Theme.mirrored
    Accessible.ignored: true
}
