// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A field, 48 high, for a text that nobody else may read.
InputField {
    id: input

    function edit() {
        forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitHeight: Math.max(48, Math.round(22 * Theme.textScale) + 20)
    secretSwitch: eye
    visible: !outlet.hidden
    enabled: outlet.enabled
    leftPadding: 16
    rightPadding: eye.visible ? eye.width + 4 : 16
    verticalAlignment: TextInput.AlignVCenter
    font.pixelSize: Math.round(20 * Theme.textScale)
    font.letterSpacing: 3
    clip: contentWidth > width - leftPadding - rightPadding

    SecretSwitch {
        id: eye

        field: input
        visible: input.text !== ""
        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
    }
    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.card
        border.width: input.activeFocus ? 1.5 : 1
        border.color: input.activeFocus ? Theme.accentInk : Theme.track
    }
}
