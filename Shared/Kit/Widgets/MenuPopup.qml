// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// What alerts and action sheets share: they open and close with their outlet.
OverlayPopup {
    id: menu

    required property MenuOutlet outlet
    /// The choice for Escape and Back; -1 for none.
    property int escapeIndex: outlet.cancelIndex

    Component.onCompleted: follow()
    onClosed: keyboard.giveBack()

    function follow() {
        if (outlet.presented) {
            keyboard.remember();
            open();
        } else {
            close();
        }
    }
    function cancel() {
        if (escapeIndex >= 0) {
            outlet.choose(escapeIndex);
        }
    }

    Connections {
        target: menu.outlet
        function onPresentedChanged() {
            menu.follow();
        }
    }
}
