// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A screen to be read: one card from top to bottom whose text, in pieces, only stands for as long as it is seen. Arrows,
/// the page keys, Space, Home and End scroll.
PageScaffold {
    id: page

    property alias model: list.model
    /// As wide as `textWidth`; at `textStart`.
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
    /// Whether the key was one of the page's.
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
        // A screenful on either side, so that a flick meets text.
        cacheBuffer: Math.max(0, height)
        Accessible.role: Accessible.Document
        Accessible.name: page.controller?.title ?? ""
        Keys.onPressed: (event) => event.accepted = page.handleKey(event)
        // The text comes later than the page; a list then starts at its first row, not above it.
        onCountChanged: page.scrollToStart()

        // Above the card and in it, below the text and the card.
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
