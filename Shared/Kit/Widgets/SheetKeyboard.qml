// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Tells the host of a sheet of the keyboard's coming, going and change of height.
QtObject {
    required property SheetHostController host

    readonly property var inputMethod: Qt.inputMethod
    /// Points of the window that the keyboard covers.
    readonly property real height: inputMethod.visible ? inputMethod.keyboardRectangle.height : 0

    onHeightChanged: {
        if (height > 0) {
            host.keyboardWillShow(height);
        } else {
            host.keyboardWillHide();
        }
    }
}
