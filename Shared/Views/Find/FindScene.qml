// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Find: a field for its bar, and below it what was found, or the recent texts and what can be found.
PageScaffold {
    id: scene

    readonly property FindViewController find: controller as FindViewController

    function enterTable() {
        find.keepText();
        table.forceActiveFocus(Qt.TabFocusReason);
    }

    bar: Item {
        id: bars

        property bool scrolled: false

        implicitHeight: Theme.barHeight

        // The bar shows no title; a screen reader says one all the same.
        Item {
            anchors.fill: parent
            Accessible.role: Accessible.Heading
            Accessible.name: scene.find.title
        }
        SearchBar {
            id: search

            anchors.fill: parent
            placeholder: qsTr("Find on all consoles")
            text: scene.find.searchBar.text
            onTextChanged: scene.find.searchBar.text = text
            onCancelled: scene.find.goBack()
            Keys.onDownPressed: scene.enterTable()
            Keys.onReturnPressed: scene.enterTable()
            Keys.onEnterPressed: scene.enterTable()
            // A text that another screen brought is there to be looked at, not to be changed.
            Component.onCompleted: {
                if (text === "") {
                    start();
                }
            }

            Connections {
                target: scene.find.searchBar
                function onFocusRequested() {
                    search.start();
                }
                function onTextChanged() {
                    search.text = scene.find.searchBar.text;
                }
            }
            Hairline {
                visible: bars.scrolled
                width: parent.width
                anchors.bottom: parent.bottom
            }
        }
    }
    scrollView: table.flickable

    KeyAction {
        name: "search"
        enabled: scene.visible
        onActivated: search.start()
    }
    CardTable {
        id: table

        table: scene.find.tableView
        label: scene.find.title
        delegate: FindDelegate {}
        focus: true
        anchors.fill: parent

        PlainButton {
            parent: table.flickable.contentItem
            visible: !scene.find.clearButton.hidden
            text: qsTr("Clear")
            size: Theme.captionSize
            x: Theme.mirrored ? inset : table.width - width - inset
            // In the middle of the first heading's line.
            y: table.flickable.originY + 4 + Math.round((Theme.lineFor(size) * Theme.textScale - height) / 2)
            onClicked: scene.find.clearRecents()

            readonly property real inset: table.rows.sideMargin + Theme.rowStart - rightPadding
        }
    }
    NoContent {
        anchors.fill: parent
        picture: "no_data_find"
        headlineOutlet: scene.find.noDataHeadline
        labelOutlet: scene.find.noDataLabel
    }
}
