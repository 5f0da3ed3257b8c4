// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Saves or copies the rows that a list shows. Ctrl+S saves them at once, also while the bar has no room for the
/// button.
IconButton {
    id: button

    required property ListShare share
    /// Whether there are rows, and they are seen.
    required property bool offered
    property bool hasRoom: true

    objectName: "shareButton"
    iconName: "share"
    text: qsTr("Save list as CSV")
    action: "saveList"
    visible: offered && hasRoom
    onClicked: offer()

    function offer() {
        if (offered) {
            share.present();
        }
    }

    KeyAction {
        name: "saveList"
        enabled: button.offered
        onActivated: button.share.save()
    }
    GridMenu {
        outlet: button.share.menu
    }
}
