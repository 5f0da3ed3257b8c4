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

    readonly property bool shrinks: fontSizeMode !== Text.FixedSize
    readonly property int drawnSize: shrinks ? fittedSize() : font.pixelSize
    readonly property real drop: Appearance.textDrop(drawnSize, lineHeight, Screen.devicePixelRatio)

    /// Apart from the binding, which would not be compiled with it.
    function fittedSize(): int {
        return fontInfo.pixelSize;
    }

    // A text watches where the viewport is until it is changed for the first time, and one that watches has every
    // scrolled frame tell all items of the list: so that even an empty text has to be a change.
    text: " "
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
