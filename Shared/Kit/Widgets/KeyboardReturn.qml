// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Gives the keyboard focus back to the item that had it before a popup, unless the focus has moved to another item.
/// Without this, no item has the focus after a popup of the window's overlay has closed.
QtObject {
    /// Any item of the window; null once the window goes.
    required property Item inside
    property Item before: null
    property bool wasShown: false

    function remember() {
        before = inside.Window.activeFocusItem;
        // The ring returns only if the keyboard had brought the focus to the item; after a press it never showed.
        wasShown = (before as AccessibleItem)?.visualFocus ?? false;
    }
    /// What fills the window around the item. It knows which of its pages is seen and has the keyboard.
    function sceneOf(item: Item): Item {
        const scene = item.parent;
        return scene === null || scene === inside.Window.contentItem ? item : sceneOf(scene);
    }
    function giveBack() {
        if (inside === null) {
            return;
        }
        const now = inside.Window.activeFocusItem;
        if (before !== null && (now === null || now === inside.Window.contentItem)) {
            (before.visible ? before : sceneOf(before)).forceActiveFocus(wasShown ? Qt.TabFocusReason : Qt.OtherFocusReason);
        }
        before = null;
    }
}
