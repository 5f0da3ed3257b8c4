// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A row that slides aside and uncovers buttons: trailing ones at its end, leading ones at its start. By finger or mouse,
/// or at once by a long press, the secondary button or the menu key.
Item {
    id: cell

    property var buttons: []
    property var leadingButtons: []
    /// The leading button that a far drag lets fill the row, and chooses when the finger goes; -1 for none.
    property int leadingExpansion: -1
    property bool pressable: true
    /// Shown pressed whatever the finger does.
    property bool highlighted: false
    property bool focusShown: false
    property color surface: Theme.card
    default property alias content: holder.data
    signal clicked()
    signal buttonTapped(int index, bool leading)
    /// The cell is about to uncover buttons: close the others.
    signal opening()
    /// Closed by Escape: the keyboard needs another place.
    signal escaped()

    /// How far the row is aside: positive uncovers the trailing buttons.
    property real reveal: 0
    /// The drag has come so far that letting go chooses the expanding button.
    property bool expanded: false
    property bool keyboardWanted: false
    readonly property bool isOpen: reveal !== 0
    readonly property bool hovered: area.containsMouse
    readonly property bool pressedLook: highlighted || (pressable && area.pressed && area.containsMouse && !area.held && !isOpen)
    readonly property int buttonWidth: 72
    readonly property real trailingWidth: buttons.length * buttonWidth
    readonly property real leadingWidth: leadingButtons.length * buttonWidth
    readonly property bool hasButtons: trailingWidth + leadingWidth > 0
    /// The buttons' words, the leading ones after the trailing ones: what a reader does without uncovering them.
    readonly property var commands: buttons.concat(leadingButtons).map((button) => button.title || button.spoken)

    function doCommand(command: int) {
        const leading = command >= buttons.length;
        close();
        buttonTapped(leading ? command - buttons.length : command, leading);
    }

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
        expanded = false;
    }
    function toggle() {
        if (isOpen) {
            close();
        } else {
            open(trailingWidth === 0);
        }
    }
    /// To the innermost of the buttons that are uncovered, or about to be.
    function takeKeyboard() {
        const first = uncovered.itemAt(0) as SwipeButtons;
        keyboardWanted = first === null;
        if (first !== null) {
            first.takeKeyboard();
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

    NumberAnimation {
        id: settling

        target: cell
        property: "reveal"
        duration: Theme.settle
        easing.type: Easing.OutCubic
    }

    Item {
        anchors.fill: parent
        clip: cell.isOpen

        Rectangle {
            anchors.fill: parent
            color: cell.surface
        }
        // Pointer handlers here would keep a finger from scrolling the list: Qt 6.4's flickable takes nothing from them.
        MouseArea {
            id: area

            property bool held: false
            property real from: 0
            // Speed is taken over a stretch of the way: single moves come in bunches when the program was busy, and two of
            // a bunch tell nothing.
            readonly property int stretch: 40
            property real stretchX: 0
            property real stretchTime: 0
            property real nextX: 0
            property real nextTime: 0
            property real lastTime: 0
            /// Points a second, towards the end of the row.
            property real speed: 0

            // Joined with | it would be interpreted, and the first interpreted look at Qt has all its names read.
            readonly property int leftOrRight: Qt.LeftButton + Qt.RightButton

            anchors.fill: parent
            acceptedButtons: leftOrRight
            hoverEnabled: true
            drag.target: cell.hasButtons ? handle : null
            drag.axis: Drag.XAxis
            onPressed: {
                held = false;
                handle.x = 0;
            }
            onClicked: (mouse) => {
                if (mouse.button === Qt.LeftButton) {
                    cell.clicked();
                } else if (cell.hasButtons) {
                    cell.toggle();
                }
            }
            onPressAndHold: (mouse) => {
                if (cell.hasButtons && mouse.button === Qt.LeftButton) {
                    held = true;
                    cell.toggle();
                }
            }
            drag.onActiveChanged: {
                if (drag.active) {
                    settling.stop();
                    from = cell.reveal;
                    stretchX = nextX = handle.x;
                    stretchTime = nextTime = lastTime = Date.now();
                    speed = 0;
                    if (from === 0) {
                        cell.opening();
                    }
                } else {
                    letGo();
                }
            }

            function follow(x: real) {
                const now = Date.now();
                if (now - nextTime >= stretch) {
                    stretchX = nextX;
                    stretchTime = nextTime;
                    nextX = x;
                    nextTime = now;
                }
                speed = (Theme.mirrored ? 1 : -1) * (x - stretchX) / Math.max(stretch, now - stretchTime) * 1000;
                lastTime = now;
                const wish = from + (Theme.mirrored ? 1 : -1) * x;
                const limit = wish > 0 ? cell.trailingWidth : cell.leadingWidth;
                if (wish < 0 && limit > 0 && cell.leadingExpansion >= 0) {
                    cell.reveal = Math.max(wish, -cell.width);
                    cell.expanded = -wish > 1.5 * limit;
                    return;
                }
                cell.expanded = false;
                const over = Math.max(0, Math.abs(wish) - limit);
                // Past the last button the row follows with a fifth of the finger.
                cell.reveal = Math.sign(wish) * (limit === 0 ? 0 : Math.min(Math.abs(wish), limit) + over / 5);
            }
            function letGo() {
                if (cell.expanded) {
                    cell.expanded = false;
                    cell.close();
                    cell.buttonTapped(cell.leadingExpansion, true);
                    return;
                }
                const extent = cell.reveal > 0 ? cell.trailingWidth : -cell.leadingWidth;
                // A finger that rested before it went was not flicking.
                const flick = Date.now() - lastTime < 50 ? speed * Math.sign(extent) : 0;
                const stays = Math.abs(cell.reveal) > Math.abs(extent) / 2 ? flick > -300 : flick > 300;
                cell.settleTo(stays ? extent : 0);
            }
        }
        Item {
            id: handle

            onXChanged: {
                if (area.drag.active) {
                    area.follow(x);
                }
            }
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
                expanded: cell.expanded ? cell.leadingExpansion : -1
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
