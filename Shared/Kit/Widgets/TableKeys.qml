// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The keyboard of a CardTable: Arrows, Home, End and the page keys move, Enter and Space choose, Shift+F10 swipes, the
/// menu key swipes or opens the row's menu, F5 refreshes. In the start column, keys that move also move the choice, and
/// the arrow towards the end column enters it.
QtObject {
    id: keys

    required property ListView list
    required property TableState rows
    required property RowChoice choice
    signal pulled()
    /// The keyboard's row is to become the current one, and to be scrolled to.
    signal turned(int index)

    readonly property Timer following: Timer {
        interval: 150 // so that what a held key runs over is not opened
        onTriggered: keys.follow()
    }

    function step(from: int, direction: int, distance: int) {
        const target = rows.rowFrom(from, direction, distance);
        rows.keyboardUsed = true;
        if (target >= 0) {
            turned(target);
            if (choice.splits) {
                following.restart();
            }
        }
    }
    /// While no ring shows, the first arrow only shows the ring; the next one moves it. A chosen row shows as well.
    function arrow(direction: int, distance: int) {
        step(list.currentIndex, direction, rows.keyboardUsed || choice.index === list.currentIndex ? distance : 0);
    }
    /// Lets the choice, if there is one, follow the keyboard. A row that does not lead on but offers a menu or more rows
    /// is left alone until it is chosen.
    function follow() {
        const place = list.currentItem as TableRow;
        if (choice.index >= 0 && place !== null && place.selectable && place.content.leadsOn) {
            activateCurrent();
        }
    }
    /// Enters the end column, with the current row's screen in it. False outside the start column.
    function enter(): bool {
        const place = list.currentItem as TableRow;
        following.stop();
        if (!choice.splits || place === null || place.isHeader) {
            return false;
        }
        activateCurrent();
        if (isShownBeside(place)) {
            choice.enter();
        }
        return true;
    }
    /// Does what the arrow towards the end column does. Only a row that leads on opens something first.
    function goBeside(): bool {
        const place = list.currentItem as TableRow;
        return choice.splits && (place?.content?.leadsOn ? enter() : choice.enter());
    }
    function keepCurrent() {
        if (list.currentIndex < 0) {
            list.currentIndex = rows.rowFrom(-1, 1, 1);
        }
    }
    function activateCurrent() {
        const place = list.currentItem as TableRow;
        if (place !== null && !place.isHeader && !isShownBeside(place)) {
            rows.activate(place.index, place.selectable);
        }
    }
    /// Whether choosing the row would only open anew what stands beside the table.
    function isShownBeside(place: TableRow): bool {
        return place.index === choice.index && place.content.leadsOn;
    }
    function swipeByKeyboard() {
        const place = list.currentItem as TableRow;
        if (place !== null && place.swipe.hasButtons) {
            rows.keyboardUsed = true;
            place.swipe.toggle();
            rows.swipeHasKeyboard = rows.swiped === place.swipe;
            if (rows.swipeHasKeyboard) {
                place.swipe.takeKeyboard();
            }
        }
    }
    function menuByKeyboard() {
        const place = list.currentItem as TableRow;
        if (place !== null && place.content !== null && place.content.offersMenu) {
            rows.keyboardUsed = true;
            rows.menuOf(place.section, place.row);
        } else {
            swipeByKeyboard();
        }
    }
    /// Returns whether the key is one of the table's.
    function handle(key: int, modifiers: int): bool {
        if (modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)) {
            return false;
        }
        const page = Math.max(1, Math.floor(list.height / Math.max(1, rows.table.rowHeight)) - 1);
        switch (key) {
        case Qt.Key_Down:
            arrow(1, 1);
            return true;
        case Qt.Key_Up:
            arrow(-1, 1);
            return true;
        case Qt.Key_PageDown:
            arrow(1, page);
            return true;
        case Qt.Key_PageUp:
            arrow(-1, page);
            return true;
        case Qt.Key_Home:
            step(-1, 1, 1);
            return true;
        case Qt.Key_End:
            step(rows.table.count, -1, 1);
            return true;
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            if (!enter()) {
                activateCurrent();
            }
            return true;
        case Qt.Key_Left:
            return Theme.mirrored && goBeside();
        case Qt.Key_Right:
            return !Theme.mirrored && goBeside();
        case Qt.Key_F10:
            if (!(modifiers & Qt.ShiftModifier)) {
                return false;
            }
            swipeByKeyboard();
            return true;
        case Qt.Key_Menu:
            menuByKeyboard();
            return true;
        case Qt.Key_F5:
            pulled();
            return true;
        default:
            return false;
        }
    }
}
