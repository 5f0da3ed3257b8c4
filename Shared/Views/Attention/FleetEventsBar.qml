// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// What the bar of the Attention tab offers for events: their order and a search.
Row {
    id: bar

    required property FleetEventsViewController controller

    IconButton {
        iconName: "sort"
        text: qsTr("Order")
        onClicked: bar.controller.showOrder()
    }
    IconButton {
        iconName: "search"
        text: qsTr("Search")
        onClicked: bar.controller.search()
    }
}
