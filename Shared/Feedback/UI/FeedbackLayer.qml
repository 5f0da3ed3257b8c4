// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Feedback
import Lodestar.Kit

/// Shows the feedback screen over everything in the window, popups included, and asks about crashes.
Item {
    id: layer

    required property FeedbackHost subject

    function follow() {
        if (subject.screen !== null && cover.opened) {
            // A screen replaces another whose question was just answered; the keyboard focus would vanish with that
            // question.
            screen.forceActiveFocus(Qt.OtherFocusReason);
        } else if (subject.screen !== null) {
            keyboard.remember();
            cover.open();
        } else {
            cover.close();
        }
    }
    Component.onCompleted: follow()

    Connections {
        target: layer.subject
        function onScreenChanged() {
            layer.follow();
        }
    }

    readonly property KeyboardReturn keyboard: KeyboardReturn {
        inside: layer
    }

    T.Popup {
        id: cover

        objectName: "feedbackCover"
        parent: T.Overlay.overlay
        modal: true
        dim: false
        focus: true
        closePolicy: T.Popup.NoAutoClose
        padding: 0
        margins: 0
        width: parent !== null ? parent.width : 0
        height: parent !== null ? parent.height : 0
        onClosed: layer.keyboard.giveBack()

        enter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.alertIn; easing.type: Easing.OutCubic }
        }
        background: Rectangle {
            color: Theme.ground
        }
        contentItem: ModalLayer {
            focus: true
            LayoutMirroring.enabled: Theme.mirrored
            LayoutMirroring.childrenInherit: true
            Accessible.role: Accessible.Dialog
            Accessible.name: qsTr("Feedback")

            SceneView {
                id: screen

                controller: layer.subject.screen
                reportsAppearance: true
                focus: true
                anchors.fill: parent
            }
        }
    }
    Alert {
        outlet: layer.subject.alert
    }
}
