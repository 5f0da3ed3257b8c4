// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Lies behind the text of a piece while that is selected.
Rectangle {
    required property real textStart
    required property real textWidth

    x: textStart - 6
    width: textWidth + 12
    height: parent.height
    color: Theme.match
}
