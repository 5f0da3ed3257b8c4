// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A row that slides aside and uncovers buttons: trailing ones at its end, leading ones at its start. A finger or the
/// mouse slides the row; a long press, the secondary button or the menu key opens it at once, unless they ask for the
/// row's menu.
Item {
    id: cell

    property var buttons: []
    property var leadingButtons: []
    /// The leading button that fills the row after a far drag and is chosen when the finger leaves; -1 for none.
    property int leadingExpansion: -1
    property bool pressable: true
    property bool offersMenu: false
    /// Makes the row look pressed in any case.
    property bool highlighted: false
    /// Likewise, as long as the row's menu is up.
    property bool menuShown: false
    property bool focusShown: false
    property color surface: Theme.card
    default property alias content: holder.data
    signal clicked()
    signal buttonTapped(int index, bool leading)
    signal menuRequested()
    /// The cell is about to uncover buttons, so that others should close.
    signal opening()
    /// Escape closed the cell; the keyboard focus has to go elsewhere.
    signal escaped()

    /// Points by which the row is aside: positive uncovers the trailing buttons, negative the leading ones.
    property real reveal: 0
    /// The drag is far enough that letting go chooses the expanding button.
    property bool expanded: false
    property bool keyboardWanted: false
    readonly property bool isOpen: reveal !== 0
    readonly property bool hovered: area.containsMouse
    readonly property bool pressedLook: highlighted || menuShown || (pressable && area.pressed && area.containsMouse && !area.held && !isOpen)
    readonly property int buttonWidth: 72
    readonly property real trailingWidth: buttons.length * buttonWidth
    readonly property real leadingWidth: leadingButtons.length * buttonWidth
    readonly property bool hasButtons: trailingWidth + leadingWidth > 0
    /// The buttons' names, trailing ones first. A screen reader offers them as actions without uncovering the buttons.
    readonly property var commands: buttons.concat(leadingButtons).map((button) => button.title || button.spoken)

    function doCommand(command: int) {
        const leading = command >= buttons.length;
        close();
        buttonTapped(leading ? command - buttons.length : command, leading);
    }

    function act() {
        if (offersMenu) {
            menuRequested();
        } else if (hasButtons) {
            toggle();
        }
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
    /// Closes the row without animation, as when the row is reused for other content.
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
    /// Gives the keyboard focus to the innermost button; at once, or as soon as the buttons exist.
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
        // A MouseArea, because pointer handlers would keep a finger from scrolling the list: Qt 6.4's flickable cannot
        // take the grab from them.
        MouseArea {
            id: area

            property bool held: false
            property real from: 0
            // Speed is measured over at least this many milliseconds: events arrive in bunches when the program was
            // busy, and the events of one bunch say nothing about speed.
            readonly property int stretch: 40
            property real stretchX: 0
            property real stretchTime: 0
            property real nextX: 0
            property real nextTime: 0
            property real lastTime: 0
            /// In points a second, towards the end of the row.
            property real speed: 0

            // A sum, because QML compiles + but interprets |, and the first interpreted use of Qt makes the engine read
            // all of Qt's names.
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
                } else {
                    cell.act();
                }
            }
            onPressAndHold: (mouse) => {
                if ((cell.hasButtons || cell.offersMenu) && mouse.button === Qt.LeftButton) {
                    held = true;
                    cell.act();
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
                // Beyond the last button, the row follows at a fifth of the finger's way.
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
                // A finger that rested before it left did not flick.
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
                // The buttons exist only from now on, so a pending request for the keyboard focus is fulfilled here.
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
