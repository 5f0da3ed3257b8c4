// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// What action sheets and grid menus share: choices for one thing, at the window's lower edge or beside the pointer,
/// with Cancel set apart. Opens and closes with its outlet.
MenuPopup {
    id: sheet

    /// Items that draw the choices but for Cancel.
    property alias choices: place.data
    /// Whether choices stand side by side, so that the keys for left and right step, too.
    property bool sideways: false

    property real slide: 0
    /// On wide windows the choices come up beside the pointer, so that nobody has to reach down for them.
    property bool nearPress: false
    /// LastPress knows only of presses after its making, so it is made together with the sheet.
    readonly property QtObject presses: LastPress
    property point press

    readonly property bool hasIcons: {
        for (let i = 0; i < outlet.choices.length; ++i) {
            if (outlet.choices[i].imageName !== "") {
                return true;
            }
        }
        return false;
    }
    readonly property var cancelChoice: outlet.cancelIndex >= 0 ? outlet.choices[outlet.cancelIndex] : undefined

    /// Moves the keyboard to the next or the previous choice.
    function step(event: var, forward: bool) {
        const from = card.Window.activeFocusItem ?? card;
        from.nextItemInFocusChain(forward).forceActiveFocus(Qt.TabFocusReason);
        event.accepted = true;
    }
    function stepSideways(event: var, forward: bool) {
        event.accepted = sideways;
        if (sideways) {
            step(event, forward);
        }
    }

    closePolicy: T.Popup.CloseOnReleaseOutside
    width: parent !== null ? Math.min(parent.width - 24, Theme.actionSheetMaxWidth) : 0
    height: card.implicitHeight
    x: parent === null ? 0 : !nearPress ? Math.round((parent.width - width) / 2)
                                        : Math.max(12, Math.min(Math.round(press.x - width / 2), parent.width - width - 12))
    y: parent === null ? 0 : !nearPress ? parent.height - (height + 8) * slide
                                        : Math.max(12, Math.min(press.y + 12, parent.height - height - 12)) + 12 * (1 - slide)
    opacity: nearPress ? slide : 1

    onAboutToShow: {
        // Asked for by a key, they come up at the row or the button that has the keyboard.
        const asked = keyboard.before as AccessibleItem;
        nearPress = parent.width >= 600 && (LastPress.isRecent() || asked !== null);
        press = LastPress.isRecent() || asked === null ? LastPress.position()
                                                       : asked.mapToItem(null, asked.width / 2, asked.height / 2);
    }
    onAboutToHide: {
        // A press beside the sheet closed it.
        if (outlet.presented) {
            cancel();
        }
    }
    onOpened: card.forceActiveFocus(Qt.OtherFocusReason)

    enter: Transition {
        NumberAnimation { property: "slide"; to: 1; duration: Theme.sheetIn; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "slide"; to: 0; duration: Theme.sheetOut; easing.type: Easing.OutCubic }
    }
    background: Item {}
    contentItem: ModalLayer {
        id: card

        focus: true
        implicitHeight: rows.height + (cancelBox.visible ? 8 + cancelBox.height : 0)
        LayoutMirroring.enabled: Theme.mirrored
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.PopupMenu
        Accessible.name: sheet.outlet.title
        Accessible.description: sheet.outlet.message
        Keys.onEscapePressed: sheet.cancel()
        Keys.onBackPressed: sheet.cancel()
        Keys.onDownPressed: (event) => sheet.step(event, true)
        Keys.onUpPressed: (event) => sheet.step(event, false)
        Keys.onRightPressed: (event) => sheet.stepSideways(event, !Theme.mirrored)
        Keys.onLeftPressed: (event) => sheet.stepSideways(event, Theme.mirrored)

        RaisedCard {
            anchors.fill: rows
        }
        Column {
            id: rows

            width: parent.width

            Item {
                visible: sheet.outlet.title !== ""
                width: parent.width
                height: title.height + 27 + (message.visible ? message.height + 4 : 0)

                Label {
                    id: title

                    text: sheet.outlet.title
                    size: Theme.captionSize
                    color: Theme.ink2
                    x: 20
                    y: 14
                    width: parent.width - 40
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
                Label {
                    id: message

                    visible: sheet.outlet.message !== ""
                    text: sheet.outlet.message
                    x: 20
                    y: title.y + title.height + 4
                    width: parent.width - 40
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                    maximumLineCount: 4
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
            }
            Column {
                id: place

                width: parent.width
            }
        }
        Item {
            id: cancelBox

            visible: sheet.cancelChoice !== undefined
            y: rows.height + 8
            width: parent.width
            height: cancelButton.implicitHeight

            RaisedCard {
                anchors.fill: parent
                color: cancelButton.pressed ? Theme.pressed : Theme.raised
            }
            PlainButton {
                id: cancelButton

                anchors.fill: parent
                implicitHeight: Math.max(56, Math.round(22 * Theme.textScale) + 24)
                text: sheet.cancelChoice?.title ?? ""
                onClicked: sheet.cancel()
            }
        }
    }
}
