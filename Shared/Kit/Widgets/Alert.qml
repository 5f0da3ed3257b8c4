// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// A question or a piece of news, in the middle of the window, with up to two buttons side by side or more below each
/// other. Opens and closes with its outlet.
T.Popup {
    id: alert

    required property MenuOutlet outlet

    parent: T.Overlay.overlay
    modal: true
    dim: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    padding: 0
    margins: 12
    width: 288
    height: body.implicitHeight
    x: parent !== null ? Math.round((parent.width - width) / 2) : 0
    y: parent !== null ? Math.round((parent.height - height) * 0.46) : 0

    function follow() {
        if (outlet.presented) {
            keyboard.remember();
            open();
        } else {
            close();
        }
    }
    function cancel() {
        if (outlet.cancelIndex >= 0) {
            outlet.choose(outlet.cancelIndex);
        } else if (outlet.choices.length === 1) {
            outlet.choose(0);
        }
    }

    readonly property KeyboardReturn keyboard: KeyboardReturn {
        inside: alert.parent
    }

    Component.onCompleted: follow()
    onClosed: keyboard.giveBack()
    onOpened: {
        const first = buttons.itemAt(Math.max(0, outlet.cancelIndex));
        if (first !== null) {
            first.forceActiveFocus(Qt.OtherFocusReason);
        }
    }

    Connections {
        target: alert.outlet
        function onPresentedChanged() {
            alert.follow();
        }
    }

    enter: Transition {
        ParallelAnimation {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.alertIn; easing.type: Easing.OutCubic }
            NumberAnimation {
                property: "scale"
                from: Theme.reducedMotion ? 1 : 0.96
                to: 1
                duration: Theme.alertIn
                easing.type: Easing.OutCubic
            }
        }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; to: 0; duration: Theme.alertIn }
    }
    T.Overlay.modal: Rectangle {
        color: Theme.scrim

        Behavior on opacity {
            NumberAnimation { duration: Theme.alertIn }
        }
    }

    background: Item {
        BoxShadow {
            anchors.fill: parent
        }
        Rectangle {
            anchors.fill: parent
            radius: Theme.sheetRadius
            color: Theme.raised
        }
    }
    contentItem: ModalLayer {
        id: body

        readonly property bool sideBySide: alert.outlet.choices.length === 2 && !Theme.stacked

        focus: true
        implicitHeight: texts.implicitHeight + 38 + grid.height
        LayoutMirroring.enabled: Theme.mirrored
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.AlertMessage
        Accessible.name: alert.outlet.title
        Accessible.description: alert.outlet.message
        Keys.onEscapePressed: alert.cancel()
        Keys.onBackPressed: alert.cancel()

        Column {
            id: texts

            x: 20
            y: 20
            width: parent.width - 40
            spacing: 4

            Label {
                visible: text !== ""
                text: alert.outlet.title
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Label {
                visible: text !== ""
                text: alert.outlet.message
                size: Theme.stateSize
                color: Theme.ink2
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        Grid {
            id: grid

            anchors.bottom: parent.bottom
            width: parent.width
            columns: body.sideBySide ? 2 : 1

            Repeater {
                id: buttons

                model: alert.outlet.choices

                PlainButton {
                    id: choice

                    required property int index
                    required property menuChoice modelData

                    // A button has the keyboard from the start, so that keys typed ahead do not go past the question.
                    focus: index === Math.max(0, alert.outlet.cancelIndex)
                    width: body.sideBySide ? grid.width / 2 : grid.width
                    implicitHeight: Math.max(48, Math.round(22 * Theme.textScale) + 26)
                    text: modelData.title
                    ink: modelData.destructive ? Theme.systemRedInk : Theme.accentInk
                    onClicked: alert.outlet.choose(index)
                    Keys.onLeftPressed: choice.nextItemInFocusChain(Theme.mirrored).forceActiveFocus(Qt.TabFocusReason)
                    Keys.onRightPressed: choice.nextItemInFocusChain(!Theme.mirrored).forceActiveFocus(Qt.TabFocusReason)

                    Hairline {
                        width: parent.width
                    }
                    Hairline {
                        visible: body.sideBySide && parent.index === 1
                        vertical: true
                        anchors.left: parent.left
                        height: parent.height
                    }
                }
            }
        }
    }
}
