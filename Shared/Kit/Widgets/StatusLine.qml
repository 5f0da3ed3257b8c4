// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The line below a form that tells what is going on, in the look of its outlet's state; errors stand on a plate.
Item {
    id: status

    required property LabelOutlet outlet
    property bool busy: false

    readonly property bool failed: outlet.state === Role.State.Error

    readonly property string spoken: visible ? outlet.text : ""
    /// The height with a single line of text.
    readonly property int leastHeight: 42

    implicitHeight: Math.max(leastHeight, word.implicitHeight + 18)
    visible: !outlet.hidden
    Accessible.role: Accessible.StaticText
    Accessible.name: outlet.text
    onSpokenChanged: announcement.say(spoken)

    Announcement {
        id: announcement
    }
    Spinner {
        id: spinner

        size: 16
        running: status.busy && !status.failed && status.outlet.text !== ""
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        anchors.verticalCenter: parent.verticalCenter
    }
    StateWord {
        id: word

        word: status.outlet.text
        role: status.outlet.state
        mark: status.failed ? Theme.stateMark(role) : ""
        markLeads: true
        wraps: true
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart + (spinner.running ? 26 : 0)
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowStart
        anchors.verticalCenter: parent.verticalCenter
    }
}
