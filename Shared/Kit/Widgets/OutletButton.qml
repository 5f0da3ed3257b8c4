// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The button at the end of a screen's bar, which follows its outlet. F5 presses the button while the button means
/// refresh.
IconButton {
    id: button

    /// Null for a screen without such a button.
    required property BarButtonOutlet outlet

    objectName: "rightBarButton"
    visible: iconName !== ""
    enabled: outlet !== null && outlet.enabled
    iconName: outlet !== null ? outlet.imageName : ""
    text: outlet !== null ? outlet.title : ""
    onClicked: outlet.tap()

    action: iconName === "refresh" || iconName === "search" ? iconName : ""

    KeyAction {
        name: "refresh"
        enabled: button.visible && button.iconName === "refresh"
        onActivated: button.outlet.tap()
    }
}
