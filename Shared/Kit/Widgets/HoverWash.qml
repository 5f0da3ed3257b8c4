// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// What lies behind a control's word or picture while the pointer is over it, on whatever ground the control stands.
Rectangle {
    id: wash

    property bool shown: false

    visible: opacity > 0
    opacity: shown ? 1 : 0
    radius: Theme.cardRadius
    color: Theme.wash

    Behavior on opacity {
        NumberAnimation { duration: wash.shown ? Theme.pressIn : Theme.pressOut }
    }
}
