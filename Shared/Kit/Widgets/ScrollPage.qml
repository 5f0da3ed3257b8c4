// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Fixed content that scrolls: cards and headers one below the other, at a readable width.
Flickable {
    id: page

    default property alias content: column.data
    property int measure: Theme.measure
    /// Points above the first card: 8 below a bar of 52, 0 below a tab root's bar of 60. A page that begins with a
    /// header sets the header's `space` to `12 - topSpace`.
    property real topSpace: 8

    readonly property var inputMethod: Qt.inputMethod
    /// Points of the page that a keyboard covers.
    property real coveredHeight: inputMethod.visible ? inputMethod.keyboardRectangle.height : 0
    readonly property real shownHeight: height - coveredHeight

    readonly property real margin: Theme.sideMargin(width, measure)

    anchors.fill: parent
    contentWidth: width
    contentHeight: column.y + column.implicitHeight + Theme.groupGap
    bottomMargin: coveredHeight
    boundsBehavior: Flickable.DragAndOvershootBounds
    flickableDirection: Flickable.VerticalFlick

    /// Scrolls to an item that got the keyboard focus; of an item that is too tall, to its top.
    function reveal(item: Item) {
        const spot = item.mapToItem(contentItem, 0, 0);
        if (spot.y < contentY) {
            contentY = Math.max(0, spot.y - 12);
        } else if (spot.y + item.height > contentY + shownHeight) {
            contentY = Math.min(contentHeight - shownHeight, spot.y, spot.y + item.height + 12 - shownHeight);
        }
    }

    /// Scrolls by a key that nothing on the page has used.
    function scrollByKey(event: var) {
        switch (event.key) {
        case Qt.Key_Down: scrollBy(44); break;
        case Qt.Key_Up: scrollBy(-44); break;
        case Qt.Key_PageDown: scrollBy(height - 44); break;
        case Qt.Key_PageUp: scrollBy(44 - height); break;
        case Qt.Key_Home: scrollBy(-contentHeight); break;
        case Qt.Key_End: scrollBy(contentHeight); break;
        default: return;
        }
        event.accepted = true;
    }
    function scrollBy(by: real) {
        contentY = Math.max(0, Math.min(contentHeight - height, contentY + by));
    }

    readonly property Item keyboardItem: Window.activeFocusItem
    onKeyboardItemChanged: revealKeyboardItem()
    onShownHeightChanged: {
        if (coveredHeight > 0) {
            revealKeyboardItem();
        }
    }

    function revealKeyboardItem() {
        for (let item = keyboardItem; item !== null; item = item.parent) {
            if (item === column) {
                reveal(keyboardItem);
                return;
            }
        }
    }

    ScrollMark {
        parent: page
        flickable: page
    }
    Column {
        id: column

        x: page.margin
        y: page.topSpace
        width: page.width - 2 * page.margin
    }
}
