// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The visible part of a TabBadge. It grows in and shrinks away; while it shrinks, it keeps the last count.
Rectangle {
    id: badge

    required property TabBadge subject
    property string text

    property string lastText: text
    /// 1 is there, 0 is gone.
    property real presence: text !== "" ? 1 : 0

    // Bound once the badge is there, so that the first count grows in, too.
    Component.onCompleted: text = Qt.binding(() => badge.subject.text)
    onTextChanged: {
        if (text !== "") {
            lastText = text;
        }
    }

    implicitWidth: Math.max(18, count.implicitWidth + 10)
    implicitHeight: 18
    radius: 9
    color: Theme.systemRed
    visible: presence > 0
    opacity: presence
    scale: Theme.reducedMotion ? 1 : 0.8 + 0.2 * presence

    Behavior on presence {
        NumberAnimation {
            duration: Theme.reducedMotion ? 120 : 160
            easing.type: Easing.OutCubic
        }
    }

    // The tab's picture may be behind the badge, so that a rim of the bar's colour sets them apart.
    Rectangle {
        z: -1
        anchors.fill: parent
        anchors.margins: -2
        radius: 11
        color: Theme.card
    }
    Label {
        id: count

        text: badge.lastText
        size: Theme.axisSize
        line: 18
        scaleFactor: 1
        color: "#FFFFFF"
        anchors.centerIn: parent
        Accessible.ignored: true
    }
}
