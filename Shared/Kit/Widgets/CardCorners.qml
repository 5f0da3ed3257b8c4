// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Makes a square surface look rounded by covering its corners in the colour behind it. The surface is not clipped,
/// because rows of a card are pressed, swiped and removed one by one and the software renderer clips to rectangles
/// only.
CornerCover {
    color: Theme.ground
    radius: Theme.cardRadius
    clip: Theme.strong

    LaterItem {
        wanted: Theme.strong
        visible: Theme.strong
        source: "qrc:/Lodestar/Kit/CardOutline.qml"
        subject: parent
        anchors.fill: parent
    }
}
