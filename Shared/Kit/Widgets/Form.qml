// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A column of rows that scrolls when room is short: to the row that is being edited, or to a row given to `reveal`.
Flickable {
    id: form

    /// The user tapped beside the rows.
    signal tapped()

    default property alias rows: column.data
    /// The form's visible height once the sheet or page around it has stopped moving.
    property real restingHeight: height

    readonly property Item edited: rowOf(form.Window.activeFocusItem)
    property Item revealed: null
    property real lastRestingHeight: 0

    function reveal(row: Item) {
        revealed = row;
        follow();
    }
    function rowOf(item: Item): Item {
        let row = item;
        while (row !== null && row.parent !== column) {
            row = row.parent;
        }
        return row;
    }
    /// Takes the keyboard from the field that has it.
    function endEditing() {
        if (edited !== null) {
            form.Window.activeFocusItem.focus = false;
        }
    }
    function follow() {
        if (revealed === null) {
            return;
        }
        const from = scrolling.running ? scrolling.to : contentY;
        const wanted = Math.min(revealed.y, Math.max(from, revealed.y + revealed.height - restingHeight));
        scrollTo(Math.max(0, Math.min(wanted, column.implicitHeight - restingHeight)));
    }
    function scrollTo(y: real) {
        scrolling.stop();
        if (y !== contentY) {
            scrolling.to = y;
            scrolling.start();
        }
    }

    contentHeight: column.implicitHeight
    bottomMargin: Math.max(0, height - restingHeight)
    interactive: contentHeight + bottomMargin > height
    boundsBehavior: Flickable.StopAtBounds

    onEditedChanged: {
        if (edited !== null) {
            reveal(edited);
        }
    }
    onContentHeightChanged: follow()
    onRestingHeightChanged: {
        // When room shrinks, the form scrolls back to its beginning unless somebody is editing.
        if (restingHeight < lastRestingHeight) {
            revealed = edited;
            if (edited === null) {
                scrollTo(0);
            }
        }
        lastRestingHeight = restingHeight;
        follow();
    }
    onMovementStarted: {
        scrolling.stop();
        revealed = null;
    }

    // The area lies inside the form because an interactive form takes every press that nothing inside it wants.
    MouseArea {
        width: form.width
        height: Math.max(form.height, form.contentHeight + form.bottomMargin)
        onClicked: form.tapped()
    }
    ScrollMark {
        parent: form
        flickable: form
    }
    Column {
        id: column

        width: form.width
    }
    NumberAnimation {
        id: scrolling

        target: form
        property: "contentY"
        duration: Theme.sheetBack
        easing.type: Easing.OutCubic
    }
}
