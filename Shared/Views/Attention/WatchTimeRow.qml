// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A time of day that a press opens for changing, by a quarter of an hour a press.
FocusScope {
    id: row

    property alias text: head.text
    property string time
    property bool open: false
    /// GroupCard hides the hairlines beside a row that looks pressed.
    readonly property bool pressedLook: head.pressedLook
    signal moved(int quarters)

    width: parent !== null ? parent.width : implicitWidth
    implicitWidth: head.implicitWidth
    implicitHeight: head.implicitHeight + (open ? steps.height : 0)
    clip: true

    onEnabledChanged: {
        if (!enabled) {
            open = false;
        }
    }

    MenuRow {
        id: head

        width: parent.width
        detail: row.time
        greyed: false
        focus: true
        Accessible.description: row.open ? qsTr("Left and right change the time.") : ""
        Keys.onLeftPressed: (event) => move(event, Theme.mirrored ? 1 : -1)
        Keys.onRightPressed: (event) => move(event, Theme.mirrored ? -1 : 1)
        onClicked: row.open = !row.open

        function move(event: var, quarters: int) {
            event.accepted = row.open;
            if (row.open) {
                row.moved(quarters);
            }
        }
    }
    Item {
        id: steps

        visible: row.open
        anchors.top: head.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: less.width + value.width + more.width
        height: Math.max(Theme.target, value.implicitHeight) + 12

        PlainButton {
            id: less

            text: "−"
            size: Theme.valueSize
            anchors.left: parent.left
            Accessible.name: qsTr("%1, earlier").arg(row.text)
            onClicked: row.moved(-1)
        }
        Label {
            id: value

            text: row.time
            size: Theme.valueSize
            anchors.left: less.right
            width: implicitWidth + 32
            height: less.height
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
        PlainButton {
            id: more

            text: "+"
            size: Theme.valueSize
            anchors.left: value.right
            Accessible.name: qsTr("%1, later").arg(row.text)
            onClicked: row.moved(1)
        }
    }
}
