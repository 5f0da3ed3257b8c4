// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The segment Events: bars of the last days over the events of all consoles, and what a search finds of these.
FocusScope {
    id: content

    required property FleetEventsViewController controller
    required property AttentionViewController attention
    readonly property bool searching: controller.searchBar.active
    readonly property bool resultsShown: searching && controller.searchBar.text !== ""
    readonly property Flickable scrollView: resultsShown ? results.flickable : table.flickable

    function enterTable() {
        (resultsShown ? results : table).forceActiveFocus(Qt.TabFocusReason);
    }
    function cancelSearch(event: var) {
        event.accepted = searching;
        if (searching) {
            controller.searchBar.cancel();
        }
    }

    Keys.onEscapePressed: (event) => content.cancelSearch(event)
    Keys.onBackPressed: (event) => content.cancelSearch(event)
    onSearchingChanged: {
        if (!searching) {
            table.forceActiveFocus(Qt.OtherFocusReason);
        }
    }

    KeyAction {
        name: "search"
        enabled: content.visible
        onActivated: content.controller.search()
    }
    CardTable {
        id: table

        table: content.controller.tableView
        label: content.controller.title
        delegate: FleetEventDelegate {}
        refreshControl: content.attention.refreshControl
        topSpace: 0
        visible: content.controller.emptyText === "" && !content.resultsShown
        focus: true
        anchors.fill: parent
        lineSpace: header.height

        // Lies in the margin instead of a header: in Qt 6.4 a list makes no header of a bound component.
        FleetEventsHeader {
            id: header

            parent: table.flickable.contentItem
            controller: content.controller
            attention: content.attention
            width: table.width
            y: table.flickable.originY - height
        }
    }
    CardTable {
        id: results

        table: content.controller.searchResultsTableView
        label: qsTr("Search results")
        delegate: FleetEventDelegate {}
        visible: content.resultsShown
        anchors.fill: parent
    }
    NoContent {
        anchors.fill: parent
        visible: content.resultsShown && results.table.rows === 0
        picture: "no_data_events"
        text: qsTr("Nothing found.")
    }
    NoContent {
        anchors.fill: parent
        visible: !content.resultsShown && content.controller.emptyText !== ""
        picture: "no_data_events"
        text: content.controller.emptyText
        actionText: content.controller.choiceText !== "" ? qsTr("Reset") : ""
        onAction: content.attention.showAllEvents()
    }
}
