// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Application
import Lodestar.Kit

// The application's mark on the bare ground.
Rectangle {
    id: scene

    required property LoginViewController controller

    color: Theme.ground

    Icon {
        anchors.centerIn: parent
        name: "app_icon"
        size: 96
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Lodestar")
    }
}
