// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// Mirrors a navigation controller: slides its screens in and out. Escape, the back key and a swipe from the edge where
/// one started reading go back.
FocusScope {
    id: view

    required property NavigationController controller

    focus: true
    Keys.onEscapePressed: (event) => view.goBack(event)
    Keys.onBackPressed: (event) => view.goBack(event)

    function goBack(event: var) {
        event.accepted = view.controller.depth > 1;
        if (event.accepted) {
            view.controller.pop();
        }
    }
    function show(shown: ViewController, animated: bool) {
        stack.push(page, {"controller": shown}, animated ? T.StackView.Transition : T.StackView.Immediate);
    }

    Component.onCompleted: {
        for (let index = 0; index < controller.depth; ++index) {
            show(controller.viewControllerAt(index), false);
        }
    }
    Connections {
        target: view.controller
        function onPushed(shown, animated) {
            view.show(shown, animated);
        }
        function onPopped(shown, animated) {
            stack.pop(animated ? T.StackView.Transition : T.StackView.Immediate);
        }
    }

    Component {
        id: page

        SceneView {
            T.StackView.onActivated: forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    T.StackView {
        id: stack

        readonly property real away: Theme.mirrored ? -width : width

        anchors.fill: parent
        focus: true
        clip: busy

        pushEnter: Transition { Slide { from: Theme.reducedMotion ? 0 : stack.away; to: 0 } Fade { from: 0; to: 1 } }
        pushExit: Transition { Slide { from: 0; to: Theme.reducedMotion ? 0 : -stack.away / 3 } }
        popEnter: Transition { Slide { from: Theme.reducedMotion ? 0 : -stack.away / 3; to: 0 } }
        popExit: Transition { Slide { from: 0; to: Theme.reducedMotion ? 0 : stack.away } Fade { from: 1; to: 0 } }
    }
    component Slide: NumberAnimation {
        property: "x"
        duration: Theme.push
        easing.type: Easing.OutCubic
    }
    component Fade: NumberAnimation {
        property: Theme.reducedMotion ? "opacity" : ""
        duration: Theme.push
    }

    Item {
        id: edge

        width: 16
        height: parent.height
        anchors.left: parent.left
        enabled: view.controller.depth > 1

        DragHandler {
            property bool done: false

            target: null
            yAxis.enabled: false
            onActiveChanged: done = false
            onTranslationChanged: {
                if (active && !done && (Theme.mirrored ? -translation.x : translation.x) > 56) {
                    done = true;
                    view.controller.pop();
                }
            }
        }
    }
}
