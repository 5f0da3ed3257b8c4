// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A text of the type scale. The line is as high as the scale says and capitals, not boxes, are centred in it: the face
/// sits high in its box.
Text {
    id: label

    property int size: Theme.bodySize
    property real line: Theme.lineFor(size)
    /// Bars stop growing earlier than the rest.
    property real scaleFactor: Theme.textScale

    readonly property int drawnSize: fontSizeMode === Text.FixedSize ? font.pixelSize : fontInfo.pixelSize
    readonly property real drop: Appearance.textDrop(drawnSize, lineHeight, Screen.devicePixelRatio)

    color: Theme.ink
    font.family: Theme.family
    font.pixelSize: Math.round(size * scaleFactor)
    font.weight: Font.Normal
    lineHeightMode: Text.FixedHeight
    lineHeight: Math.round(line * scaleFactor)
    topPadding: drop
    bottomPadding: -drop
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
}
