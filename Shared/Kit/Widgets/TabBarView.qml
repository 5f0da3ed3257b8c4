// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// Shows a tab bar controller. A tab's scene is made when the tab is first shown, and is kept.
FocusScope {
    id: view

    required property TabBarController controller

    readonly property bool rail: Theme.widthClass(width) === Theme.wideWidth

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }
    FocusScope {
        id: body

        focus: true
        x: view.rail && !Theme.mirrored && bar.visible ? bar.width : 0
        width: parent.width - (view.rail && bar.visible ? bar.width : 0)
        height: parent.height - (!view.rail && bar.visible ? bar.height : 0)

        Repeater {
            model: view.controller.count

            SceneView {
                id: tab

                required property int index
                readonly property bool selected: view.controller.selectedIndex === index
                property bool shown: false

                anchors.fill: parent
                controller: shown ? view.controller.controllerAt(index) : null
                visible: selected
                focus: selected
                enabled: selected
                onSelectedChanged: shown = shown || selected
                Component.onCompleted: shown = shown || selected
            }
        }
    }
    TabBar {
        id: bar

        controller: view.controller
        // Beside a second column, a screen has no need of the bar's room.
        visible: !view.controller.barHidden || view.width >= Theme.columnsFrom
        rail: view.rail
        low: !view.rail && view.height < Theme.lowBelow && view.width > view.height
        width: rail ? implicitWidth : parent.width
        height: rail ? parent.height : implicitHeight
        x: rail && Theme.mirrored ? parent.width - width : 0
        y: rail ? 0 : parent.height - height
    }
    // Both loaded when there is first something to say, so that they do not slow the start.
    Loader {
        source: Tips.text === "" ? "" : "Tip.qml"
        width: view.width
        height: view.height
    }
    Loader {
        // The URL is used because a bound component cannot be made by a loader.
        source: Toasts.text === "" ? "" : "Toast.qml"
        x: body.x + (body.width - width) / 2
        y: body.height - height - 16
    }
}
