// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Opens Find over a tab's first screen.
IconButton {
    id: button

    required property ViewController screen

    objectName: "findButton"
    iconName: "search"
    text: qsTr("Find anywhere")
    action: "find"
    onClicked: FindOpener.openOver(button.screen)
}
