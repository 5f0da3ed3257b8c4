// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The root of a table's delegate: the content of one row. Declare `required property var cell` (or a closer type) and
/// draw; the table adds surface, hairline, press, focus and swipe. A row is as high as the table's row height at the
/// present text size, or as this item's implicit height if that is more.
Item {
    /// The row's text for screen readers, as one sentence: name, state, counts.
    property string accessibleText
    /// What else is drawn, told after the sentence.
    property string accessibleDetail
    /// Whether the row can be pressed. Screen readers read a row that cannot.
    property bool selectable: true
    /// Buttons as values with `title`, `role` (one of Role.Button) and, for a picture, `imageName`; the first stands at
    /// the outer edge.
    property var swipeButtons: []
    property var leadingSwipeButtons: []
    /// The leading button that fills the row after a far drag and is chosen when the finger leaves; -1 for none.
    property int leadingSwipeExpansion: -1
    /// Whether a press opens a screen at once, so that the keys which move through the list in the start column may do so.
    property bool leadsOn: false
    /// Whether the row's screen is shown beside the list. The table writes this.
    property bool chosen: false
    /// The width of the list, which may be that of a column of the window.
    readonly property real listWidth: (parent as CellHost)?.listWidth ?? width
    /// Whether a long press, the secondary button and the menu key ask for a menu instead of the buttons.
    property bool offersMenu: false
}
