// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Takes the place of the Attention tab's bar while events are searched.
SearchBar {
    id: bar

    required property FleetEventsViewController controller
    /// The keyboard leaves the field for what was found.
    signal entered()

    onTextChanged: controller.searchBar.text = text
    onCancelled: controller.searchBar.cancel()
    Keys.onDownPressed: entered()
    Keys.onReturnPressed: entered()
    Keys.onEnterPressed: entered()
    // Made anew when the screen is seen again: a search that goes on keeps its words, and the rows the keyboard.
    Component.onCompleted: {
        text = controller.searchBar.text;
        if (text === "") {
            start();
        }
    }

    Connections {
        target: bar.controller.searchBar
        function onFocusRequested() {
            bar.start();
        }
        function onTextChanged() {
            bar.text = bar.controller.searchBar.text;
        }
    }
}
