// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A field that searches a list in the same sheet or page. Escape empties it first.
Rectangle {
    id: search

    property alias text: field.text
    /// Whether the field has the keyboard within the sheet or page.
    property alias hasKeyboard: field.focus
    property alias placeholder: placeholderLabel.text

    implicitHeight: Math.max(40, Math.round(40 * Theme.barScale))
    radius: Theme.fieldRadius
    color: Theme.sheetWell
    border.width: Theme.outlineWidth
    border.color: Theme.outline

    Icon {
        id: glass

        name: "search"
        color: Theme.ink2
        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
    }
    InputField {
        id: field

        label: search.placeholder
        anchors.left: glass.right
        anchors.leftMargin: 8
        anchors.right: clearButton.left
        height: parent.height
        topPadding: Appearance.textDrop(font.pixelSize, height, Screen.devicePixelRatio)
        verticalAlignment: TextInput.AlignTop
        font.pixelSize: Math.round(Theme.bodySize * Theme.barScale)
        Keys.onEscapePressed: (event) => {
            event.accepted = field.text !== "";
            field.clear();
        }

        Label {
            id: placeholderLabel

            visible: field.text === "" && field.preeditText === ""
            scaleFactor: Theme.barScale
            color: Theme.ink2
            anchors.verticalCenter: parent.verticalCenter
            anchors.left: parent.left
            anchors.leftMargin: Theme.caretRoom
            anchors.right: parent.right
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    IconButton {
        id: clearButton

        visible: field.text !== ""
        iconName: "close"
        text: qsTr("Clear")
        ink: Theme.ink2
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        onClicked: {
            field.clear();
            field.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
}
