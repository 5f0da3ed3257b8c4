// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The note below a card; without a text it takes no room.
Item {
    id: foot

    property string text

    implicitHeight: text !== "" && loader.item !== null ? (loader.item as Label).implicitHeight : 0
    height: implicitHeight
    visible: text !== ""

    function make() {
        if (text !== "" && loader.status === Loader.Null) {
            loader.setSource("SectionFootNote.qml", {"foot": foot});
        }
    }

    onTextChanged: make()
    Component.onCompleted: make()

    // Made on first use, because each row of a list has a foot, and most stay empty.
    Loader {
        id: loader

        width: parent.width
    }
}
