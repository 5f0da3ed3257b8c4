// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// The buttons that a swiped row uncovers. They take the keyboard when they come; the arrows move between them and
/// Escape closes.
FocusScope {
    id: view

    required property var buttons
    required property bool trailing
    required property int buttonWidth
    /// How much of them is uncovered.
    required property real extent
    signal tapped(int index)
    signal escaped()

    readonly property bool atRight: trailing !== Theme.mirrored

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Actions")
    Keys.onEscapePressed: escaped()

    Repeater {
        id: repeater

        model: view.buttons

        T.AbstractButton {
            id: button

            required property int index
            required property var modelData
            readonly property color ground: Theme.surfaceFor(modelData.backgroundColor)
            readonly property string picture: modelData.imageName ?? ""
            // The outermost also fills what a drag beyond the last button uncovers.
            readonly property real spread: index === 0 ? Math.max(0, view.extent - view.buttons.length * view.buttonWidth) : 0
            readonly property real start: index * view.buttonWidth

            width: view.buttonWidth + spread
            height: view.height
            x: view.atRight ? view.width - start - width : start
            z: -index
            text: modelData.title
            focusPolicy: Qt.StrongFocus
            Accessible.role: Accessible.Button
            Accessible.name: text
            onClicked: view.tapped(index)
            Keys.onReturnPressed: button.clicked()
            Keys.onEnterPressed: button.clicked()
            Keys.onLeftPressed: view.step(index + (view.atRight ? 1 : -1))
            Keys.onRightPressed: view.step(index + (view.atRight ? -1 : 1))

            contentItem: Item {
                Icon {
                    visible: button.picture !== ""
                    name: button.picture
                    color: Theme.inkOn(button.ground)
                    anchors.centerIn: parent
                }
                Label {
                    visible: button.picture === ""
                    text: button.text
                    size: Theme.stateSize
                    scaleFactor: Theme.barScale
                    color: Theme.inkOn(button.ground)
                    width: parent.width - 8
                    anchors.centerIn: parent
                    horizontalAlignment: Text.AlignHCenter
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 8
                    Accessible.ignored: true
                }
            }
            background: Rectangle {
                color: button.down ? Qt.darker(button.ground, 1.163)
                                   : button.hovered ? Qt.darker(button.ground, 1.075) : button.ground

                FocusRing {
                    anchors.fill: parent
                    anchors.margins: 3
                    radius: Theme.segmentRadius
                    border.color: Theme.inkOn(button.ground)
                    shown: button.visualFocus
                }
            }
        }
    }

    function step(index: int) {
        const next = repeater.itemAt(index);
        if (next !== null) {
            next.forceActiveFocus(Qt.TabFocusReason);
        }
    }
    function takeKeyboard() {
        step(0);
    }
}
