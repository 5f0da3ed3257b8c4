// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// A popup that takes over its window, which it dims.
T.Popup {
    id: popup

    /// Milliseconds in which the window dims.
    property int dimming: Theme.sheetIn
    /// To be told before the popup opens and once it has closed.
    readonly property KeyboardReturn keyboard: KeyboardReturn {
        inside: popup.parent
    }

    parent: T.Overlay.overlay
    modal: true
    dim: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    padding: 0

    T.Overlay.modal: Rectangle {
        color: Theme.scrim

        Behavior on opacity {
            NumberAnimation { duration: popup.dimming }
        }
    }
}
