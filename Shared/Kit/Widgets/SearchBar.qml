// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Replaces a screen's bar while the screen's list is searched.
Item {
    id: bar

    property alias text: field.text
    property alias placeholder: placeholderLabel.text
    signal cancelled()

    readonly property real margin: Theme.sideMargin(width, Theme.measure)

    implicitHeight: Theme.barHeight

    function start() {
        field.forceActiveFocus(Qt.OtherFocusReason);
    }

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: bar.margin
        anchors.right: cancelButton.left
        anchors.verticalCenter: parent.verticalCenter
        height: 40
        radius: Theme.fieldRadius
        color: Theme.well
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

            label: qsTr("Search")
            anchors.left: glass.right
            anchors.leftMargin: 8
            anchors.right: clearButton.left
            height: parent.height
            topPadding: Appearance.textDrop(font.pixelSize, height, Screen.devicePixelRatio)
            verticalAlignment: TextInput.AlignTop
            font.pixelSize: Math.round(Theme.bodySize * Theme.barScale)
            Keys.onEscapePressed: bar.cancelled()

            Label {
                id: placeholderLabel

                visible: field.text === "" && field.preeditText === ""
                text: qsTr("Search")
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
                bar.start();
            }
        }
    }
    PlainButton {
        id: cancelButton

        text: qsTr("Cancel")
        scaleFactor: Theme.barScale
        anchors.right: parent.right
        anchors.rightMargin: bar.margin - 12
        anchors.verticalCenter: parent.verticalCenter
        onClicked: bar.cancelled()
    }
}
