// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Tells the host of a sheet that the keyboard comes, goes or changes its height. The host hears that the keyboard goes
/// as soon as editing ends, though the keyboard may be visible a moment longer, so that what the sheet does next comes
/// after that.
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
    /// The keyboard is on its way out; changes of its height are not reported.
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
    /// Editing began again before the keyboard was gone.
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
