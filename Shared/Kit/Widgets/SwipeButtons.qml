// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// The buttons that a swiped row uncovers. They get the keyboard focus when they appear; the arrows move between them
/// and Escape closes them.
FocusScope {
    id: view

    required property var buttons
    required property bool trailing
    required property int buttonWidth
    /// Width of the buttons that is uncovered.
    required property real extent
    /// The button that fills the uncovered width; -1 for none.
    property int expanded: -1
    signal tapped(int index)
    signal escaped()

    readonly property bool atRight: trailing !== Theme.mirrored
    /// Width that a drag uncovers beyond the last button. The outermost button fills it; the others move with the row.
    readonly property real spread: Math.max(0, extent - buttons.length * buttonWidth)

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Actions")
    Keys.onEscapePressed: escaped()

    Repeater {
        id: repeater

        model: view.buttons

        Pressable {
            id: button

            required property int index
            required property var modelData
            readonly property color ground: Theme.buttonGround(modelData.role)
            readonly property color ink: Theme.buttonInk(modelData.role)
            readonly property string picture: modelData.imageName ?? ""
            readonly property bool captioned: modelData.captioned ?? false
            readonly property real narrow: view.buttonWidth + (index === 0 ? view.spread : 0)
            readonly property real start: (index * view.buttonWidth + (index > 0 ? view.spread : 0)) * (1 - fill)
            property real fill: index === view.expanded ? 1 : 0

            width: narrow + (Math.max(narrow, view.extent) - narrow) * fill
            height: view.height
            x: view.atRight ? view.width - start - width : start
            z: fill > 0 ? 1 : -index
            text: modelData.title
            Accessible.role: Accessible.Button
            Accessible.name: text !== "" ? text : modelData.spoken ?? ""
            onClicked: view.tapped(index)
            Keys.onLeftPressed: view.step(index + (view.atRight ? 1 : -1))
            Keys.onRightPressed: view.step(index + (view.atRight ? -1 : 1))

            Behavior on fill {
                NumberAnimation {
                    duration: Theme.settle
                    easing.type: Easing.OutCubic
                }
            }

            Rectangle {
                anchors.fill: parent
                color: button.pressed ? Qt.darker(button.ground, 1.163) : button.ground

                HoverWash {
                    anchors.fill: parent
                    radius: 0
                    color: Qt.alpha(button.ink, 0.14)
                    shown: button.hovered && !button.pressed
                }
                FocusRing {
                    anchors.fill: parent
                    anchors.margins: 3
                    radius: Theme.segmentRadius
                    color: button.ink
                    shown: button.visualFocus
                }
            }
            Icon {
                visible: button.picture !== ""
                name: button.picture
                color: button.ink
                anchors.horizontalCenter: parent.horizontalCenter
                y: Math.round((parent.height - height - (title.visible ? title.height + 6 : 0)) / 2)
            }
            Label {
                id: title

                visible: button.picture === "" || button.captioned
                text: button.text
                size: button.picture === "" ? Theme.stateSize : Theme.noteSize
                scaleFactor: Theme.barScale
                color: button.ink
                width: parent.width - 8
                anchors.horizontalCenter: parent.horizontalCenter
                y: Math.round((parent.height - height + (button.picture !== "" ? 30 : 0)) / 2)
                horizontalAlignment: Text.AlignHCenter
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 8
                Accessible.ignored: true
            }
        }
    }

    function step(index: int) {
        const next = repeater.itemAt(index);
        if (next !== null) {
            next.forceActiveFocus(Qt.TabFocusReason);
        }
    }
    /// Focuses the button next to the row, because an action that cannot be undone stands at the outer edge.
    function takeKeyboard() {
        step(repeater.count - 1);
    }
}
