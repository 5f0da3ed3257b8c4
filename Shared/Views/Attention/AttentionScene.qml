// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The tab Attention: one bar over three segments, of which each is made when it is first chosen and then kept.
PageScaffold {
    id: scene

    readonly property AttentionViewController attention: controller as AttentionViewController
    readonly property int segment: attention.segmentedControl.selectedSegmentIndex
    readonly property bool sheetUp: attention.semiModal !== null
    /// Rows that are seen, headings included.
    readonly property int rows: segment === 0 ? attention.now.tableView.rows
                                              : segment === 1 ? attention.changes.tableView.rows
                                                              : (searching && attention.events.searchBar.text !== ""
                                                                 ? attention.events.searchResultsTableView
                                                                 : attention.events.tableView).rows
    readonly property bool searching: segment === 2 && events.content !== null && events.content.searching

    bar: Item {
        id: bars

        property bool scrolled: false

        implicitHeight: top.height + control.height + 16

        Item {
            id: top

            width: parent.width
            height: scene.searching ? Theme.barHeight : Theme.rootBarHeight

            RootBar {
                id: rootBar

                anchors.fill: parent
                visible: !scene.searching
                controller: scene.controller
                onTitleHeld: share.offer()
                trailing: [
                    ListShareButton {
                        id: share

                        share: scene.attention.share
                        offered: scene.visible && !scene.sheetUp && scene.rows > 0
                        hasRoom: rootBar.fits(scene.segment === 2 ? 5 : 4)
                    },
                    Loader {
                        id: eventsBar

                        visible: scene.segment === 2
                    },
                    // Beside the events' own search, the same picture would mean two things.
                    FindButton {
                        screen: scene.controller
                        visible: scene.segment !== 2
                    },
                    AttentionWatchButton {
                        outlet: scene.attention.watchLabel
                        onClicked: scene.attention.openWatch()
                    },
                    AttentionFilterButton {
                        filtered: scene.attention.filtered
                        onClicked: scene.attention.openFilter()
                    }
                ]
            }
            Loader {
                id: eventsSearch

                anchors.fill: parent
                visible: scene.searching
                onVisibleChanged: {
                    if (visible) {
                        setSource("FleetEventsSearch.qml", {"controller": scene.attention.events});
                        (item as FleetEventsSearch).entered.connect(events.content.enterTable);
                    } else {
                        source = "";
                    }
                }
            }
        }
        SegmentedControl {
            id: control

            readonly property real room: parent.width - 2 * Theme.cardMargin(parent.width)

            titles: [qsTr("Now"), qsTr("Changes"), qsTr("Events")]
            label: qsTr("Attention")
            currentIndex: scene.segment
            scaleFactor: Theme.barScale
            height: Theme.stacked ? 56 : implicitHeight
            width: Theme.widthClass(parent.width) === Theme.compactWidth ? room : Math.min(room, 360)
            x: Math.round((parent.width - width) / 2)
            y: top.height + 4
            onActivated: (index) => scene.attention.segmentedControl.selectedSegmentIndex = index
        }
        Hairline {
            visible: bars.scrolled
            width: parent.width
            anchors.bottom: parent.bottom
        }
    }
    scrollView: segment === 0 ? now.scrollView
                              : segment === 1 ? changes.content?.scrollView ?? null : events.content?.scrollView ?? null

    onSegmentChanged: control.currentIndex = segment

    KeyAction {
        name: "refresh"
        enabled: scene.visible && !scene.sheetUp
        onActivated: scene.attention.refreshControl.pull()
    }

    AttentionNowContent {
        id: now

        controller: scene.attention.now
        attention: scene.attention
        visible: scene.segment === 0
        enabled: visible
        focus: visible
        anchors.fill: parent
    }
    Loader {
        id: changes

        readonly property ChangesContent content: item as ChangesContent

        visible: scene.segment === 1
        enabled: visible
        focus: visible
        anchors.fill: parent
        onVisibleChanged: {
            if (visible && status === Loader.Null) {
                setSource("ChangesContent.qml", {"controller": scene.attention.changes, "attention": scene.attention,
                                                 "focus": true});
            }
        }
    }
    Loader {
        id: events

        readonly property FleetEventsContent content: item as FleetEventsContent

        visible: scene.segment === 2
        enabled: visible
        focus: visible
        anchors.fill: parent
        onVisibleChanged: {
            if (visible && status === Loader.Null) {
                eventsBar.setSource("FleetEventsBar.qml", {"controller": scene.attention.events});
                setSource("FleetEventsContent.qml", {"controller": scene.attention.events, "attention": scene.attention,
                                                     "focus": true});
            }
        }
    }
}
