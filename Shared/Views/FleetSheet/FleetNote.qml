// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A note below a card.
Label {
    property bool alert: false

    size: Theme.captionSize
    color: alert ? Theme.orangeOnGround : Theme.ink2
    x: Theme.rowStart
    width: parent !== null ? parent.width - 2 * Theme.rowStart : 0
    topPadding: 8 + drop
    wrapMode: Text.Wrap
    Accessible.role: alert ? Accessible.Notification : Accessible.StaticText
    Accessible.name: text
}
