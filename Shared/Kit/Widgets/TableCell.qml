// SPDX-License-Identifier: Apache-2.0
import QtQuick

/// What a table's delegate is: the content of one row. Declare `required property var cell` (or its own type) and draw;
/// the table brings surface, hairline, press, focus and swipe. The row is as high as the table's row height at the
/// present text size, or as this item's implicit height where that is more.
Item {
    /// The row as one sentence: name, state, counts.
    property string accessibleText
    /// Takes a press. A row that does not is still read.
    property bool selectable: true
    /// Values with `title`, `backgroundColor` and, for a picture, `imageName`; the first stands at the outer edge.
    property var swipeButtons: []
    property var leadingSwipeButtons: []
    /// The leading button that a far drag lets fill the row, and chooses when the finger goes; -1 for none.
    property int leadingSwipeExpansion: -1
}
