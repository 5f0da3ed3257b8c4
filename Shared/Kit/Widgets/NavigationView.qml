// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// Shows a navigation controller and slides its screens in and out. Escape, Alt with the left arrow, the back key and a
/// swipe from the edge where text starts go back. Of two columns, the arrows that nothing on the screen uses enter the
/// other.
FocusScope {
    id: view

    required property NavigationController controller

    focus: true
    Keys.onEscapePressed: (event) => view.goBack(event)
    Keys.onBackPressed: (event) => view.goBack(event)
    Keys.onLeftPressed: (event) => event.accepted = stack.enter(Theme.mirrored)
    Keys.onRightPressed: (event) => event.accepted = stack.enter(!Theme.mirrored)

    function goBack(event: var) {
        event.accepted = view.controller.depth > 1;
        if (event.accepted) {
            view.controller.pop();
        }
    }

    KeyAction {
        name: "back"
        enabled: view.visible && view.controller.depth > 1
        onActivated: view.controller.pop()
    }
    Binding {
        target: view.controller
        property: "roomForTwo"
        value: view.Window.width >= Theme.columnsFrom
    }
    NavigationStack {
        id: stack

        controller: view.controller
        page: SceneView {}
        mirrored: Theme.mirrored
        fades: Theme.reducedMotion
        startWidth: Theme.startColumn
        anchors.fill: parent
        focus: true
        clip: busy
    }
    LaterItem {
        wanted: stack.endEmpty
        source: "qrc:/Lodestar/Kit/EmptyColumn.qml"
        visible: stack.endEmpty
        z: -1
        x: Theme.mirrored ? 0 : stack.startWidth
        width: parent.width - stack.startWidth
        height: parent.height
    }
    Hairline {
        visible: stack.split
        vertical: true
        height: parent.height
        x: Theme.mirrored ? parent.width - stack.startWidth : stack.startWidth - width
    }
    NumberAnimation {
        target: stack
        property: "progress"
        running: stack.busy
        from: 0
        to: 1
        duration: Theme.push
        easing.type: Theme.reducedMotion ? Easing.Linear : Easing.OutCubic
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
