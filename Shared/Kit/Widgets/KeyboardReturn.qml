// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Gives the keyboard back to whoever had it before a popup took it, unless it has gone elsewhere meanwhile. Left alone,
/// a popup of the window's overlay leaves it with nobody.
QtObject {
    /// Any item of the window; null once the window goes.
    required property Item inside
    property Item before: null
    property bool wasShown: false

    function remember() {
        before = inside.Window.activeFocusItem;
        // Who came there by the keyboard finds the ring again; the pointer never had one.
        wasShown = (before as AccessibleItem)?.visualFocus ?? false;
    }
    function giveBack() {
        if (inside === null) {
            return;
        }
        const now = inside.Window.activeFocusItem;
        if (before !== null && (now === null || now === inside.Window.contentItem)) {
            before.forceActiveFocus(wasShown ? Qt.TabFocusReason : Qt.OtherFocusReason);
        }
        before = null;
    }
}
