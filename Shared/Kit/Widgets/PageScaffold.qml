// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The frame of a screen: ground, bar, and the content below. The bar's hairline shows while the given flickable is
/// scrolled.
FocusScope {
    id: page

    required property Item bar
    property Flickable scrollView: null
    default property alias content: body.data
    /// When this controller asks for the end of text editing, the page takes the keyboard focus; null for none.
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
    /// Scrolls to the beginning; from far away the first part of the way is skipped.
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

        // The area lies beneath the bar, so that the bar's buttons still take their presses.
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
    // Declared after the bar, so that Tab and screen readers go through the bar first.
    Item {
        id: body

        anchors.top: top.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
    }
}
