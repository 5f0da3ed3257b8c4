// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Tells the host of a sheet of the keyboard's coming, going and change of height. The keyboard goes when editing ends,
/// though it may be seen a moment longer: what the sheet does next, it does after that.
QtObject {
    id: keyboard

    required property SheetHostController host
    /// Any item of the window.
    required property Item inside

    readonly property Item edited: inside !== null ? inside.Window.activeFocusItem : null
    property var inputMethod: Qt.inputMethod
    /// Points of the window that the keyboard covers.
    readonly property real height: inputMethod.visible ? inputMethod.keyboardRectangle.height : 0
    property bool announced: false
    /// On its way out: what it still covers is no news.
    property bool leaving: false

    onHeightChanged: {
        if (height > 0 && !leaving) {
            announced = true;
            host.keyboardWillShow(height);
        } else if (height <= 0) {
            leaving = false;
            willHide();
        }
    }

    function willHide() {
        if (announced) {
            announced = false;
            leaving = height > 0;
            host.keyboardWillHide();
        }
    }
    /// Somebody writes again before the keyboard has gone.
    function willStay() {
        if (leaving) {
            leaving = false;
            announced = true;
            host.keyboardWillShow(height);
        }
    }

    onEditedChanged: {
        if (edited !== null && "inputMethodHints" in edited) {
            willStay();
        }
    }

    readonly property Connections watch: Connections {
        target: keyboard.host.semiModal?.controller ?? null
        function onEndEditingRequested() {
            keyboard.willHide();
        }
    }
}
