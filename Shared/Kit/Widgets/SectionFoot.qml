// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The note below a card; without a text it takes no room.
LaterItem {
    property string text

    height: text !== "" ? implicitHeight : 0
    visible: text !== ""
    wanted: text !== ""
    source: "qrc:/Lodestar/Kit/SectionFootNote.qml"
}
