// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A few choices for one thing, over everything else while its outlet presents them: see GridMenuSheet.
Loader {
    id: menu

    required property MenuOutlet outlet
    /// LastPress knows only of presses after its making, and the sheet is made after the press that asks for it.
    readonly property QtObject presses: LastPress

    // Made on first use: most screens go without their menu, and none should start more slowly for it.
    function make() {
        if (outlet.presented && status === Loader.Null) {
            setSource("GridMenuSheet.qml", {"outlet": outlet});
        }
    }

    Component.onCompleted: make()

    Connections {
        target: menu.outlet
        function onPresentedChanged() {
            menu.make();
        }
    }
}
