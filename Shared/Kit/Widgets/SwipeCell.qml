// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// A row that slides aside and uncovers buttons: trailing ones at its end, leading ones at its start. By finger or mouse,
/// or at once by a long press, the secondary button or the menu key.
T.AbstractButton {
    id: cell

    property var buttons: []
    property var leadingButtons: []
    property bool pressable: true
    /// Shown pressed whatever the finger does.
    property bool highlighted: false
    property bool focusShown: visualFocus
    property color surface: Theme.card
    default property alias content: holder.data
    signal buttonTapped(int index, bool leading)
    /// The cell is about to uncover buttons: close the others.
    signal opening()
    /// Closed by Escape: the keyboard needs another place.
    signal escaped()

    /// How far the row is aside: positive uncovers the trailing buttons.
    property real reveal: 0
    property bool keyboardWanted: false
    readonly property bool isOpen: reveal !== 0
    readonly property bool pressedLook: highlighted || (pressable && down && !isOpen)
    readonly property int buttonWidth: 72
    readonly property real trailingWidth: buttons.length * buttonWidth
    readonly property real leadingWidth: leadingButtons.length * buttonWidth
    readonly property bool hasButtons: trailingWidth + leadingWidth > 0

    function open(leading: bool) {
        const extent = leading ? -leadingWidth : trailingWidth;
        if (extent !== 0) {
            opening();
            settleTo(extent);
        }
    }
    function close() {
        settleTo(0);
    }
    /// Without motion, as when the row is used for something else.
    function reset() {
        settling.stop();
        reveal = 0;
    }
    function toggle() {
        if (isOpen) {
            close();
        } else {
            open(trailingWidth === 0);
        }
    }
    /// To the first of the buttons that are uncovered, or about to be.
    function takeKeyboard() {
        const buttons = uncovered.itemAt(0) as SwipeButtons;
        keyboardWanted = buttons === null;
        if (buttons !== null) {
            buttons.takeKeyboard();
        }
    }
    function closeByKeyboard() {
        close();
        escaped();
    }
    function settleTo(extent: real) {
        settling.stop();
        settling.to = extent;
        settling.start();
    }

    hoverEnabled: pressable
    focusPolicy: Qt.NoFocus

    NumberAnimation {
        id: settling

        target: cell
        property: "reveal"
        duration: Theme.settle
        easing.type: Easing.OutCubic
    }
    DragHandler {
        id: drag

        property real from: 0

        target: null
        enabled: cell.hasButtons
        xAxis.enabled: true
        yAxis.enabled: false
        cursorShape: Qt.ArrowCursor
        onActiveChanged: {
            if (active) {
                settling.stop();
                from = cell.reveal;
                if (from === 0) {
                    cell.opening();
                }
                return;
            }
            const extent = cell.reveal > 0 ? cell.trailingWidth : -cell.leadingWidth;
            const speed = (Theme.mirrored ? 1 : -1) * centroid.velocity.x * Math.sign(extent);
            const stays = Math.abs(cell.reveal) > Math.abs(extent) / 2 ? speed > -300 : speed > 300;
            cell.settleTo(stays && extent !== 0 ? extent : 0);
        }
        onTranslationChanged: {
            if (!active) {
                return;
            }
            const wish = from + (Theme.mirrored ? 1 : -1) * translation.x;
            const limit = wish > 0 ? cell.trailingWidth : cell.leadingWidth;
            const over = Math.max(0, Math.abs(wish) - limit);
            // Past the last button the row follows with a fifth of the finger.
            cell.reveal = Math.sign(wish) * (limit === 0 ? 0 : Math.min(Math.abs(wish), limit) + over / 5);
        }
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        enabled: cell.hasButtons
        onTapped: cell.toggle()
    }
    onPressAndHold: {
        if (hasButtons) {
            toggle();
        }
    }

    contentItem: Item {
        clip: cell.isOpen

        Rectangle {
            anchors.fill: parent
            color: cell.surface
        }
        Repeater {
            id: uncovered

            model: cell.isOpen ? 1 : 0
            onItemAdded: {
                // Made when the first of them shows.
                if (cell.keyboardWanted) {
                    cell.takeKeyboard();
                }
            }

            SwipeButtons {
                width: cell.width
                height: cell.height
                buttons: cell.reveal > 0 ? cell.buttons : cell.leadingButtons
                trailing: cell.reveal > 0
                buttonWidth: cell.buttonWidth
                extent: Math.abs(cell.reveal)
                onTapped: (index) => {
                    const leading = !trailing;
                    cell.close();
                    cell.buttonTapped(index, leading);
                }
                onEscaped: cell.closeByKeyboard()
            }
        }
        Item {
            id: slider

            x: (Theme.mirrored ? 1 : -1) * cell.reveal
            width: parent.width
            height: parent.height

            Rectangle {
                anchors.fill: parent
                color: cell.pressedLook ? Theme.pressed : cell.pressable && cell.hovered && !cell.isOpen ? Theme.hovered
                                                                                                        : cell.surface

                Behavior on color {
                    ColorAnimation { duration: cell.pressedLook ? Theme.pressIn : Theme.pressOut }
                }
            }
            Item {
                id: holder

                anchors.fill: parent
            }
            FocusRing {
                anchors.fill: parent
                shown: cell.focusShown
            }
        }
    }
}
