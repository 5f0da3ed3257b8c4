// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// A field, 48 high, for a text that nobody else may read. The field draws dots from the first letter on unless its
/// owner chooses to look; its text cannot be copied, and no keyboard learns it.
T.TextField {
    id: input

    required property string label
    required property FieldOutlet outlet
    readonly property string accessibleName: label

    function edit() {
        forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitHeight: Math.max(48, Math.round(22 * Theme.textScale) + 20)
    visible: !outlet.hidden
    enabled: outlet.enabled
    leftPadding: 16
    rightPadding: eye.visible ? eye.width + 4 : 16
    verticalAlignment: TextInput.AlignVCenter
    horizontalAlignment: TextInput.AlignLeft
    font.family: Theme.family
    font.pixelSize: Math.round(20 * Theme.textScale)
    font.letterSpacing: 3
    color: Theme.ink
    selectionColor: Theme.match
    selectedTextColor: Theme.ink
    clip: contentWidth > width - leftPadding - rightPadding
    echoMode: eye.revealed ? TextInput.Normal : TextInput.Password
    Privacy.covered: true
    passwordCharacter: "\u2022"
    passwordMaskDelay: 0
    inputMethodHints: Qt.ImhHiddenText | Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
    cursorDelegate: Caret {}
    Accessible.role: Accessible.EditableText
    Accessible.name: label
    Accessible.passwordEdit: true
    Component.onCompleted: {
        text = outlet.text;
        SecureText.hideFromAccessibility(input);
    }
    onTextChanged: outlet.text = text
    onPressed: (event) => {
        if (event.button === Qt.RightButton) {
            editMenu.show(event.x, event.y);
        }
    }
    onPressAndHold: (event) => editMenu.show(event.x, event.y)
    selectByMouse: !eye.revealed
    Keys.onPressed: (event) => event.accepted = eye.isCopying(event)
    Keys.onMenuPressed: editMenu.show(cursorRectangle.x, cursorRectangle.y)

    Connections {
        target: input.outlet
        function onTextChanged() {
            if (input.text !== input.outlet.text) {
                input.text = input.outlet.text;
            }
        }
        function onResignRequested() {
            input.focus = false;
        }
    }
    EditMenu {
        id: editMenu

        field: input
        secret: true
        secretSwitch: eye
    }
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
