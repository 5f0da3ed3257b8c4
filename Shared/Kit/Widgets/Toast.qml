// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The process's toast: a dark plate that says what was done and goes by itself. It takes no touch.
Rectangle {
    id: toast

    readonly property bool shown: Toasts.presented
    readonly property string spoken: shown ? Toasts.text : ""
    /// Points that the plate may take at most.
    readonly property real room: Math.min(Theme.actionSheetMaxWidth, Window.width - 32)

    width: Math.min(room, tick.width + label.implicitWidth + 36)
    height: Math.max(Theme.target, label.height + 24)
    radius: Theme.cardRadius
    color: Theme.ink
    opacity: shown ? 1 : 0
    visible: opacity > 0
    Accessible.role: Accessible.StaticText
    Accessible.name: Toasts.text
    onSpokenChanged: announcement.say(spoken)
    Behavior on opacity {
        NumberAnimation { duration: Theme.settle }
    }

    Announcement {
        id: announcement
    }
    Icon {
        id: tick

        name: "check"
        size: 20
        color: Theme.ground
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
    }
    Label {
        id: label

        text: Toasts.text
        size: Theme.stateSize
        color: Theme.ground
        anchors.left: tick.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, toast.room - tick.width - 36)
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
