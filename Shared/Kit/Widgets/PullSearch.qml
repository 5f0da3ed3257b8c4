// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The search field above a list's first row. It starts out of sight; a pull uncovers it and it stays. It goes as soon
/// as the list is moved past it.
AccessibleItem {
    id: bar

    required property ListView list
    /// Points above the first row while the field is out of sight.
    required property real topSpace
    /// Points of these that a line takes between the field and the first row.
    property real lineSpace: 0
    property bool offered: false
    signal tapped()

    /// Points that the list adds above its first row. They are added at the first touch: without them, a finger could
    /// not uncover the whole field.
    readonly property real space: room ? height + 8 : 0
    property bool room: false
    readonly property real uncovered: list.originY - topSpace - list.contentY

    parent: list.contentItem
    y: list.originY - lineSpace - height - 8
    height: Math.max(40, Math.round(40 * Theme.barScale))
    visible: room && uncovered > 0
    pressAction: true
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Search")
    onAccessiblePressed: bar.tapped()

    function settle() {
        if (room && uncovered > 0 && list.visible) {
            snap.to = list.originY - topSpace - (uncovered > space / 2 ? space : 0);
            snap.restart();
        } else {
            room = false;
        }
    }

    onOfferedChanged: {
        if (!offered) {
            snap.stop();
            room = false;
        }
    }

    NumberAnimation {
        id: snap

        target: bar.list
        property: "contentY"
        duration: Theme.settle
        easing.type: Easing.OutCubic
        onFinished: bar.room = bar.uncovered > 0.5
    }
    Connections {
        target: bar.list
        function onDraggingChanged() {
            if (bar.list.dragging) {
                snap.stop();
                bar.room = bar.offered;
            } else if (bar.room && bar.uncovered <= bar.space / 2) {
                // This must not wait for the end of the movement: a short list always comes to rest at the field.
                bar.room = false;
            }
        }
        function onMovementEnded() {
            bar.settle();
        }
        function onVisibleChanged() {
            snap.stop();
            bar.room = false;
        }
    }
    WheelHandler {
        parent: bar.list
        enabled: bar.offered && !bar.room
        blocking: false
        onWheel: (event) => {
            if (event.angleDelta.y > 0 && bar.list.contentY <= bar.list.originY - bar.topSpace) {
                bar.room = true;
                snap.to = bar.list.originY - bar.topSpace - bar.space;
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
        onClicked: bar.tapped()
    }
}
