// SPDX-License-Identifier: Apache-2.0
import QtQuick

/// Gives the keyboard back to whoever had it before a popup took it, unless it has gone elsewhere meanwhile. Left alone,
/// a popup of the window's overlay leaves it with nobody.
QtObject {
    /// Any item of the window; null once the window goes.
    required property Item inside
    property Item before: null

    function remember() {
        before = inside.Window.activeFocusItem;
    }
    function giveBack() {
        if (inside === null) {
            return;
        }
        const now = inside.Window.activeFocusItem;
        if (before !== null && (now === null || now === inside.Window.contentItem)) {
            before.forceActiveFocus(Qt.OtherFocusReason);
        }
        before = null;
    }
}
