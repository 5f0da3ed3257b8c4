// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The hairline on top of a form's row, inset from the row's two ends; a mirrored layout exchanges the insets.
Hairline {
    required property real separatorLeft
    required property real separatorRight

    x: Theme.mirrored ? separatorRight : separatorLeft
    width: parent.width - separatorLeft - separatorRight
}
