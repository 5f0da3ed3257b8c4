// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The state that a CardTable and its rows share: which rows are pressed, chosen and swiped open.
QtObject {
    id: state

    required property TableOutlet table
    required property Component delegate
    required property real sideMargin
    required property RowChoice choice
    /// The list's current row, and whether the list has the keyboard focus.
    required property int currentIndex
    required property bool listHasKeyboard

    property int selectedIndex: -1
    property int pressedIndex: -1
    /// The user's last action in the table came from the keyboard, so that focus rings are drawn.
    property bool keyboardUsed: false
    property SwipeCell swiped: null
    readonly property bool hasOpenSwipe: swiped !== null && swiped.isOpen
    property bool swipeHasKeyboard: false
    signal rowTapped(int index)
    signal keyboardReturned()
    signal swipeButtonTapped(int section, int row, int index, bool leading)
    signal menuRequested(int section, int row)

    function activate(index: int, selectable: bool) {
        closeSwipes();
        if (selectable) {
            selectedIndex = index;
            choice.act(index);
        }
        table.select(index);
    }
    function closeSwipes() {
        if (swiped !== null) {
            swiped.close();
            swiped = null;
        }
        if (swipeHasKeyboard) {
            swipeHasKeyboard = false;
            keyboardReturned();
        }
    }
    function menuOf(section: int, row: int) {
        closeSwipes();
        menuRequested(section, row);
    }
    function swipeOpens(cell: SwipeCell) {
        if (swiped !== cell) {
            closeSwipes();
            swiped = cell;
        }
    }
    function rowPressed(index: int, pressed: bool) {
        if (pressed) {
            pressedIndex = index;
        } else if (pressedIndex === index) {
            pressedIndex = selectedIndex;
        }
    }
    /// The row that is `rows` rows away in a direction, not counting headers; at the table's end, the last row on the
    /// way. -1 for none.
    function rowFrom(from: int, direction: int, rows: int): int {
        let target = -1;
        let index = from + direction;
        for (let left = rows; left > 0 && index >= 0 && index < table.count; index += direction) {
            if (!table.isHeaderAt(index)) {
                target = index;
                --left;
            }
        }
        return target;
    }

    readonly property Connections watch: Connections {
        target: state.table
        function onDeselected(index) {
            if (state.selectedIndex === index) {
                state.selectedIndex = -1;
                state.pressedIndex = -1;
            }
        }
        function onReloaded() {
            state.selectedIndex = -1;
            state.pressedIndex = -1;
        }
        function onCloseSwipesRequested() {
            state.closeSwipes();
        }
    }
}
