// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A screen for reading: one card from top to bottom. Its text is in pieces, which exist only while they are in view.
/// Arrows, the page keys, Space, Home and End scroll. A long press or the secondary button selects a piece and offers to
/// copy it; with the shift key, the secondary button selects up to another piece.
PageScaffold {
    id: page

    property alias model: list.model
    /// Draws one piece of the text; its root stands at `textStart` and is `textWidth` wide.
    required property Component delegate
    readonly property real textStart: sideMargin + Theme.rowStart
    readonly property real textWidth: width - 2 * textStart
    readonly property ReadingController reading: controller as ReadingController
    /// The selected pieces; -1 for none.
    property int firstSelected: -1
    property int lastSelected: -1

    bar: NavigationBar {
        controller: page.controller
    }
    scrollView: list

    function select(first: int, last: int) {
        firstSelected = first;
        lastSelected = last;
    }
    function askToCopy(piece: int, onward: bool) {
        if (piece >= 0) {
            const from = onward && firstSelected >= 0 ? firstSelected : piece;
            select(Math.min(from, piece), onward ? Math.max(lastSelected, piece) : piece);
            reading.presentCopyMenu(firstSelected, lastSelected);
        }
    }
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
        case Qt.Key_Menu:
            askToCopy(firstSelected >= 0 ? firstSelected : list.indexAt(list.width / 2, list.contentY + 24), true);
            return true;
        case Qt.Key_A:
            if (event.modifiers & Qt.ControlModifier) {
                select(0, list.count - 1);
                return true;
            }
            return false;
        case Qt.Key_C:
            if (event.modifiers & Qt.ControlModifier) {
                reading.copy(firstSelected, firstSelected < 0 ? -1 : lastSelected);
                return true;
            }
            return false;
        }
        return false;
    }

    ActionSheet {
        outlet: page.reading.copyMenu
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
            border { width: Theme.outlineWidth; color: Theme.outline }
        }
        FocusRing {
            parent: list
            anchors.fill: parent
            anchors.margins: 4
            shown: keyboard.visual

            KeyboardFocus {
                id: keyboard

                item: list
            }
        }
        // Above the text, which takes no press; a finger or the mouse that moves scrolls.
        MouseArea {
            parent: list.contentItem
            z: 1
            y: list.originY
            width: list.width
            height: list.contentHeight
            // A sum, because QML compiles + but interprets |.
            acceptedButtons: Qt.LeftButton + Qt.RightButton
            onClicked: (mouse) => {
                if (mouse.button === Qt.RightButton) {
                    page.askToCopy(list.indexAt(mouse.x, mouse.y + y), mouse.modifiers & Qt.ShiftModifier);
                } else {
                    page.select(-1, -1);
                }
            }
            onPressAndHold: (mouse) => page.askToCopy(list.indexAt(mouse.x, mouse.y + y), false)
        }
    }
}
