// SPDX-License-Identifier: Apache-2.0
import QtQuick

/// Says words aloud; there is nothing to see. Screen readers speak a notification when it appears and hear nothing of
/// one whose words change. It goes again after a while, so that nobody finds it who reads the screen.
Item {
    id: announcement

    property string text

    width: 1
    height: 1
    visible: false
    Accessible.role: Accessible.Notification
    Accessible.name: text

    function say(words: string) {
        visible = false;
        text = words;
        visible = words !== "";
        gone.restart();
    }

    Timer {
        id: gone

        interval: 5000
        onTriggered: announcement.visible = false
    }
}
