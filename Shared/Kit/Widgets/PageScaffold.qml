// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A screen: ground, a bar, and content below it. Name the flickable whose sliding draws the bar's hairline.
FocusScope {
    id: page

    required property Item bar
    property Flickable scrollView: null
    default property alias content: body.data
    /// Ends text editing wherever the screen has it.
    property ViewController controller: null

    readonly property real sideMargin: Theme.sideMargin(width, Theme.measure)
    readonly property bool scrolled: scrollView !== null && scrollView.contentY - scrollView.originY > 0.5

    focus: true

    onBarChanged: bar.parent = top
    Component.onCompleted: bar.parent = top

    Connections {
        target: page.controller
        function onEndEditingRequested() {
            page.forceActiveFocus(Qt.OtherFocusReason);
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }
    Item {
        id: top

        width: parent.width
        height: page.bar.implicitHeight

        Binding {
            target: page.bar
            property: "width"
            value: top.width
        }
        Binding {
            target: page.bar
            property: "scrolled"
            value: page.scrolled
            when: page.scrollView !== null
        }
    }
    // After the bar: Tab and readers go through the bar first.
    Item {
        id: body

        anchors.top: top.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
    }
}
