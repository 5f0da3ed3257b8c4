// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Takes a file that is dropped on the screen.
DropArea {
    id: area

    signal fileDropped(url url)

    anchors.fill: parent
    keys: ["text/uri-list"]
    onDropped: (drop) => {
        if (drop.urls.length === 1) {
            drop.accept(Qt.CopyAction);
            area.fileDropped(drop.urls[0]);
        }
    }

    FocusRing {
        anchors.fill: parent
        anchors.margins: 4
        radius: Theme.cardRadius
        shown: area.containsDrag
    }
}
