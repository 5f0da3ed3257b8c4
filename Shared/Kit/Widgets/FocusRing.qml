// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The inner ring that shows which control has the keyboard focus.
Rectangle {
    id: ring

    property bool shown: false

    visible: shown
    color: "transparent"
    radius: Theme.cardRadius
    border.width: Theme.strong ? 3 : 2
    border.color: Theme.accentInk
}
