// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A list of a console's feed, with its three looks and search. A screen gives the delegate of a row; its own popups
/// are children.
PageScaffold {
    id: scene

    /// A component whose root is a TableCell; it draws rows of the list and of the search results.
    required property Component delegate
    signal swipeButtonTapped(bool inSearchResults, int section, int row, int index, bool leading)

    readonly property FeedListViewController list: controller as FeedListViewController
    readonly property bool searching: list.searchBar.active
    readonly property bool contentShown: !list.tableView.hidden
    readonly property bool resultsShown: searching && contentShown && list.searchBar.text !== ""

    function cancelSearch(event: var) {
        event.accepted = searching;
        if (searching) {
            list.searchBar.cancel();
        }
    }
    function enterTable() {
        (resultsShown ? results : table).forceActiveFocus(Qt.TabFocusReason);
    }

    onSearchingChanged: {
        if (!searching) {
            table.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
    Keys.onEscapePressed: (event) => scene.cancelSearch(event)
    Keys.onBackPressed: (event) => scene.cancelSearch(event)

    KeyAction {
        name: "search"
        enabled: scene.visible && scene.list.rightBarButton.imageName === "search"
        onActivated: scene.list.rightBarButton.tap()
    }
    KeyAction {
        name: "refresh"
        enabled: scene.visible && !scene.searching && scene.contentShown
        onActivated: scene.list.refreshControl.pull()
    }

    bar: Item {
        id: bars

        property bool scrolled: false

        implicitHeight: Theme.barHeight

        NavigationBar {
            anchors.fill: parent
            visible: !scene.searching
            controller: scene.controller
            scrolled: bars.scrolled
            titleView: TitleView {
                titleOutlet: scene.list.header.titleLabel
                subtitleOutlet: scene.list.header.subtitleLabel
            }
            trailing: [
                ListShareButton {
                    share: scene.list.share
                    offered: scene.visible && scene.contentShown
                             && (scene.resultsShown ? results.table.rows : table.table.rows) > 0
                },
                OutletButton {
                    outlet: scene.list.rightBarButton
                }
            ]
        }
        SearchBar {
            id: search

            anchors.fill: parent
            visible: scene.searching
            onTextChanged: scene.list.searchBar.text = text
            onCancelled: scene.list.searchBar.cancel()
            Keys.onDownPressed: scene.enterTable()
            Keys.onReturnPressed: scene.enterTable()
            Keys.onEnterPressed: scene.enterTable()

            Connections {
                target: scene.list.searchBar
                function onFocusRequested() {
                    search.start();
                }
                function onTextChanged() {
                    search.text = scene.list.searchBar.text;
                }
            }
            Hairline {
                visible: bars.scrolled
                width: parent.width
                anchors.bottom: parent.bottom
            }
        }
    }
    scrollView: resultsShown ? results.flickable : table.flickable

    CardTable {
        id: table

        table: scene.list.tableView
        label: scene.list.header.titleLabel.text
        refreshControl: scene.list.refreshControl
        delegate: scene.delegate
        lineSpace: consoleLine.height - consoleLine.gap
        visible: scene.contentShown && !scene.resultsShown
        searchOffered: scene.list.rightBarButton.imageName === "search" && !scene.searching
        focus: true
        anchors.fill: parent
        onSwipeButtonTapped: (section, row, index, leading) => scene.swipeButtonTapped(false, section, row, index, leading)
        onSearchTapped: scene.list.rightBarButton.tap()

        // Lies in the margin instead of a header: in Qt 6.4 a list makes no header of a bound component.
        ConsoleLine {
            id: consoleLine

            parent: table.flickable.contentItem
            console: scene.list.consoleName
            mark: scene.list.readingMark
            sideMargin: Theme.sideMargin(table.width, table.measure)
            width: table.width
            height: implicitHeight
            y: table.flickable.originY - height
        }
    }
    CardTable {
        id: results

        table: scene.list.searchResultsTableView
        label: qsTr("Search results")
        delegate: scene.delegate
        visible: scene.resultsShown
        anchors.fill: parent
        onSwipeButtonTapped: (section, row, index, leading) => scene.swipeButtonTapped(true, section, row, index, leading)
    }
    NoContent {
        anchors.fill: parent
        visible: scene.contentShown && (scene.resultsShown ? results.table.rows : table.table.rows) === 0
        picture: scene.list.noDataImage.imageName
        text: scene.resultsShown ? qsTr("Nothing found.") : scene.list.emptyText
    }
    NoContent {
        anchors.fill: parent
        imageOutlet: scene.list.noDataImage
        labelOutlet: scene.list.noDataLabel
        headlineOutlet: scene.list.noDataHeadline
    }
    Spinner {
        outlet: scene.list.fetchingActivityIndicator
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -30
    }
}
