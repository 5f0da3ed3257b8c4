// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The end column before anything was chosen.
Item {
    required property LaterItem subject

    NoContent {
        picture: "attention_clear"
        text: qsTr("Choose what to look at.")
        anchors.fill: parent
    }
}
