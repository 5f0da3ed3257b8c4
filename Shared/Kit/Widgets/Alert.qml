// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A question or a piece of news, in the middle of the window, with up to two buttons side by side or more below each
/// other. Opens and closes with its outlet.
MenuPopup {
    id: alert

    escapeIndex: outlet.choices.length === 1 ? 0 : outlet.cancelIndex
    dimming: Theme.alertIn
    margins: 12
    width: 288
    height: body.implicitHeight
    x: parent !== null ? Math.round((parent.width - width) / 2) : 0
    y: parent !== null ? Math.round((parent.height - height) * 0.46) : 0

    onOpened: {
        const first = buttons.itemAt(Math.max(0, outlet.cancelIndex));
        if (first !== null) {
            first.forceActiveFocus(Qt.OtherFocusReason);
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
    background: RaisedCard {}
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
            CountingLabel {
                visible: value !== ""
                value: alert.outlet.message
                fromZero: false
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
