// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A text in a size of the type scale. Each line has the scale's height, and capitals are centred in it; centring the
/// face's box would put them too high.
Text {
    id: label

    property int size: Theme.bodySize
    property real line: Theme.lineFor(size)
    /// Bars use a smaller factor: they stop growing earlier than other text.
    property real scaleFactor: Theme.textScale

    /// Whether the label may draw its text smaller. True from the beginning for a label whose mode changes: a Text lays
    /// itself out later for a new mode, and until then tells the size of the old one.
    property bool shrinks: fontSizeMode !== Text.FixedSize
    readonly property int drawnSize: shrinks ? fittedSize() : font.pixelSize
    readonly property real drop: Appearance.textDrop(drawnSize, lineHeight, Screen.devicePixelRatio, text)

    /// A function of its own, so that the binding around it is still compiled.
    function fittedSize(): int {
        return fontInfo.pixelSize;
    }

    // A Text watches the viewport until its text first changes, and a watching Text makes every scrolled frame notify
    // all items of the list. Starting with a space makes even an empty text a change.
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
