// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A screen for reading: one card from top to bottom. Its text is in pieces, which exist only while they are in view.
/// Arrows, the page keys, Space, Home and End scroll.
PageScaffold {
    id: page

    property alias model: list.model
    /// Draws one piece of the text; its root stands at `textStart` and is `textWidth` wide.
    required property Component delegate
    readonly property real textStart: sideMargin + Theme.rowStart
    readonly property real textWidth: width - 2 * textStart

    bar: NavigationBar {
        controller: page.controller
    }
    scrollView: list

    function scrollTo(y: real) {
        list.cancelFlick();
        const first = list.originY - list.topMargin;
        const last = list.originY + list.contentHeight + list.bottomMargin - list.height;
        list.contentY = Math.max(first, Math.min(last, y));
    }
    function scrollBy(points: real) {
        scrollTo(list.contentY + points);
    }
    function scrollToStart() {
        list.positionViewAtBeginning();
        scrollTo(list.originY - list.topMargin);
    }
    function scrollToEnd() {
        list.positionViewAtEnd();
        scrollTo(list.originY + list.contentHeight);
    }
    /// Returns whether the key was one of the page's.
    function handleKey(event: var): bool {
        const screenful = Math.max(40, list.height - 40);
        switch (event.key) {
        case Qt.Key_Down:
            scrollBy(60);
            return true;
        case Qt.Key_Up:
            scrollBy(-60);
            return true;
        case Qt.Key_PageDown:
            scrollBy(screenful);
            return true;
        case Qt.Key_PageUp:
            scrollBy(-screenful);
            return true;
        case Qt.Key_Space:
            scrollBy(event.modifiers & Qt.ShiftModifier ? -screenful : screenful);
            return true;
        case Qt.Key_Home:
            scrollToStart();
            return true;
        case Qt.Key_End:
            scrollToEnd();
            return true;
        }
        return false;
    }

    ListView {
        id: list

        objectName: "readingList"
        delegate: page.delegate
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: false
        boundsBehavior: Flickable.DragAndOvershootBounds
        // One screenful on either side is made ahead, so that a flick finds text.
        cacheBuffer: Math.max(0, height)
        Accessible.role: Accessible.Document
        Accessible.name: page.controller?.title ?? ""
        Keys.onPressed: (event) => event.accepted = page.handleKey(event)
        // The text comes later than the page, and a list that fills later stands at its first row, not at the margin
        // above.
        onCountChanged: page.scrollToStart()

        // Each margin is the space outside the card plus the space inside it.
        topMargin: 8 + 16
        bottomMargin: 24 + Theme.groupGap

        Rectangle {
            parent: list.contentItem
            z: -1
            visible: list.count > 0
            x: page.sideMargin
            y: list.originY - 16
            width: list.width - 2 * page.sideMargin
            height: list.contentHeight + 16 + 24
            radius: Theme.cardRadius
            color: Theme.card
        }
    }
}
