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
    /// To where the content begins, from afar without passing everything between.
    function scrollUp() {
        if (scrolled) {
            const begin = scrollView.originY - scrollView.topMargin;
            scrollView.cancelFlick();
            scrolling.from = Math.min(scrollView.contentY, begin + 2 * scrollView.height);
            scrolling.to = begin;
            scrolling.restart();
        }
    }

    NumberAnimation {
        id: scrolling

        target: page.scrollView
        property: "contentY"
        duration: Theme.reducedMotion ? 0 : Theme.push
        easing.type: Easing.OutCubic
        onFinished: page.scrollView.returnToBounds()
    }
    Connections {
        target: page.scrollView
        function onMovementStarted() {
            scrolling.stop();
        }
    }
    Item {
        id: top

        width: parent.width
        height: page.bar.implicitHeight

        // Beneath the bar: its buttons take their own presses.
        MouseArea {
            anchors.fill: parent
            onClicked: page.scrollUp()
        }

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
