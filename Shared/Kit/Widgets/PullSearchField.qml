// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The visible part of a PullSearch.
AccessibleItem {
    id: field

    required property PullSearch subject
    readonly property bool offered: subject.offered

    implicitHeight: Math.max(40, Math.round(40 * Theme.barScale))
    pressAction: true
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Search")
    onAccessiblePressed: field.subject.tapped()

    function settle() {
        if (subject.room && subject.uncovered > 0 && subject.list.visible) {
            snap.to = subject.list.originY - subject.topSpace - (subject.uncovered > subject.space / 2 ? subject.space : 0);
            snap.restart();
        } else {
            hide();
        }
    }
    function hide() {
        snap.stop();
        subject.room = false;
    }

    onOfferedChanged: {
        if (!offered) {
            hide();
        }
    }

    NumberAnimation {
        id: snap

        target: field.subject.list
        property: "contentY"
        duration: Theme.settle
        easing.type: Easing.OutCubic
        onFinished: field.subject.room = field.subject.uncovered > 0.5
    }
    Connections {
        target: field.subject.list
        function onDraggingChanged() {
            if (field.subject.list.dragging) {
                snap.stop();
                field.subject.room = field.subject.offered;
            } else if (field.subject.room && field.subject.uncovered <= field.subject.space / 2) {
                // This must not wait for the end of the movement: a short list always comes to rest at the field.
                field.subject.room = false;
            }
        }
        function onMovementEnded() {
            field.settle();
        }
        function onVisibleChanged() {
            field.hide();
        }
    }
    WheelHandler {
        parent: field.subject.list
        enabled: field.subject.offered && !field.subject.room
        blocking: false
        onWheel: (event) => {
            if (event.angleDelta.y > 0 && field.subject.list.contentY <= field.subject.list.originY - field.subject.topSpace) {
                field.subject.room = true;
                snap.to = field.subject.list.originY - field.subject.topSpace - field.subject.space;
                snap.restart();
            }
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.fieldRadius
        color: Theme.well
        border.width: Theme.outlineWidth
        border.color: Theme.outline
    }
    Icon {
        id: glass

        name: "search"
        color: Theme.ink2
        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
    }
    Label {
        text: qsTr("Search")
        scaleFactor: Theme.barScale
        color: Theme.ink2
        anchors.left: glass.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        onClicked: field.subject.tapped()
    }
}
