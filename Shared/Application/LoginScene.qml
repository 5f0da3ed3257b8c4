// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Application
import Lodestar.Kit

/// The passcode screen: the application's mark, which moves up to make room for the field and its two buttons. In a
/// window that is too short the space above the field shrinks first; then everything scrolls.
FocusScope {
    id: scene

    required property LoginViewController controller

    readonly property var inputMethod: Qt.inputMethod
    readonly property real screenHeight: Window.height
    /// In the scene's coordinates. Without a keyboard the frame has no height and lies on the window's lower edge.
    property rect keyboardFrame: inputMethod.visible && inputMethod.keyboardRectangle.height > 0
                                 ? inputMethod.keyboardRectangle : Qt.rect(0, screenHeight, width, 0)
    readonly property real shownHeight: height - keyboardFrame.height

    /// From 0, where only the mark shows, to 1, where everything shows.
    property real opening: 0
    readonly property real logoStart: Theme.reducedMotion ? controller.logoYAlignment : height / 2
    readonly property real logoCentre: logoStart + (controller.logoYAlignment - logoStart) * opening
    readonly property real logoEnd: controller.logoYAlignment + logo.height / 2
    property real wishedSpace: controller.spaceToPassword
    readonly property real space: Math.max(12 + label.height + 8, Math.min(wishedSpace, shownHeight - logoEnd - below))
    readonly property real below: field.height + 12 + loginButton.height + 12 + resetButton.height + 16

    focus: true

    Behavior on wishedSpace {
        NumberAnimation { duration: Theme.reducedMotion ? 0 : scene.controller.shiftDuration; easing.type: Easing.OutCubic }
    }
    SequentialAnimation {
        id: openingMotion

        PauseAnimation { duration: scene.controller.openingDelay }
        NumberAnimation {
            target: scene
            property: "opening"
            to: 1
            duration: Theme.reducedMotion ? 120 : scene.controller.openingDuration
            easing.type: Easing.InOutCubic
        }
    }

    function open() {
        if (!controller.isFirstLaunch && opening === 0 && !openingMotion.running) {
            openingMotion.start();
            field.edit();
        }
    }
    function tellLayout() {
        if (height > 0 && screenHeight > 0) {
            controller.viewDidLayoutSubviews(height, screenHeight);
        }
    }
    /// Scrolls to the button while a keyboard is up, and to the mark otherwise.
    function settleScroll() {
        const wanted = keyboardFrame.height > 0 ? loginButton.y + loginButton.height + 12 - page.height : 0;
        page.contentY = Math.max(0, Math.min(wanted, page.contentHeight - page.height));
    }

    onHeightChanged: tellLayout()
    onScreenHeightChanged: tellLayout()
    function tellKeyboard() {
        // First the heights: the controller compares the keyboard's frame with the window's height.
        tellLayout();
        controller.keyboardDidChangeFrame(keyboardFrame, 0.25);
    }

    /// False until all bindings have their first values: a call to the controller before that would cause binding
    /// loops.
    property bool complete: false
    onKeyboardFrameChanged: {
        if (complete) {
            tellKeyboard();
        }
    }
    Component.onCompleted: {
        complete = true;
        tellKeyboard();
        open();
    }

    Connections {
        target: scene.controller
        function onIsFirstLaunchChanged() {
            scene.open();
        }
        function onEndEditingRequested() {
            field.focus = false;
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }
    Flickable {
        id: page

        readonly property real columnWidth: Math.min(width - 48, 342 * Math.min(Theme.textScale, 1.5))
        readonly property real columnX: (width - columnWidth) / 2

        width: parent.width
        height: scene.shownHeight
        contentWidth: width
        contentHeight: Math.max(height, resetButton.y + resetButton.height + 16)
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        // The page handles this, because the scene notices a keyboard before the page has its new height.
        onHeightChanged: scene.settleScroll()
        onContentHeightChanged: scene.settleScroll()

        /// A press beside the field ends editing.
        MouseArea {
            width: page.contentWidth
            height: page.contentHeight
            onClicked: scene.controller.hideKeyboardOnTouch()
        }
        Icon {
            id: logo

            name: scene.controller.logoImageView.imageName
            size: 96
            x: (page.width - width) / 2
            y: scene.logoCentre - height / 2
        }
        Label {
            id: nameLabel

            readonly property bool roomy: scene.space - label.height - 8 >= 16 + height + 4

            text: qsTr("Lodestar")
            size: Theme.rootTitleSize
            x: (page.width - width) / 2
            y: logo.y + logo.height + 16
            opacity: roomy ? scene.opening : 0
            Accessible.role: Accessible.Heading
            Accessible.name: text

            Behavior on opacity {
                enabled: scene.opening === 1
                NumberAnimation { duration: Theme.settle }
            }
        }
        Label {
            id: label

            readonly property bool isNote: !scene.controller.keychainNote.hidden

            visible: !scene.controller.passwordLabel.hidden
            text: isNote ? scene.controller.keychainNote.text : scene.controller.passwordLabel.text
            size: Theme.captionSize
            color: Theme.ink2
            opacity: scene.opening
            x: page.columnX
            y: field.y - height - 8
            width: page.columnWidth
            wrapMode: Text.Wrap
            // Without a note this label names the field, and the field tells a screen reader its name itself.
            Accessible.ignored: !isNote
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        PasscodeField {
            id: field

            label: scene.controller.passwordLabel.text
            outlet: scene.controller.passwordTextField
            opacity: scene.opening
            x: page.columnX
            y: scene.logoEnd + scene.space
            width: page.columnWidth
            onAccepted: scene.controller.returnPressed()
            onVisibleChanged: {
                if (visible) {
                    edit();
                }
            }
        }
        FilledButton {
            id: loginButton

            objectName: "loginButton"
            visible: !scene.controller.loginButton.hidden
            text: qsTr("Log In")
            opacity: scene.opening
            x: page.columnX
            y: field.y + field.height + 12
            width: page.columnWidth
            onClicked: scene.controller.performLogin()
        }
        PlainButton {
            id: resetButton

            objectName: "resetPasswordButton"
            visible: !scene.controller.resetPasswordButton.hidden
            text: qsTr("Reset Passcode and Erase All Data")
            size: Theme.stateSize
            wraps: true
            opacity: scene.opening
            x: (page.width - width) / 2
            y: loginButton.y + loginButton.height + 8
            width: Math.min(implicitWidth, page.columnWidth)
            onClicked: scene.controller.resetPassword()
        }
    }
    Alert {
        outlet: scene.controller.alert
        // Whatever had the focus before, the person's next step is to type.
        onClosed: field.edit()
    }
}
