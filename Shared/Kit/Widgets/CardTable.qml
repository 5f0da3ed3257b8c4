// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A table drawn as cards: one rounded card per section holds its rows with hairlines between them, headers stand
/// above. Give it the outlet and a delegate, a component whose root is a TableCell.
AccessibleScope {
    id: view

    required property TableOutlet table
    required property Component delegate
    /// The name that a screen reader says for the list.
    required property string label
    property RefreshControl refreshControl: null
    property int measure: Theme.measure
    /// Points above the first card: 8 below a bar of 52, 0 below a tab root's bar of 60.
    property real topSpace: 8
    /// Points more for a line that the screen itself puts there, in the list's content.
    property real lineSpace: 0
    /// Points more below the last card for what the screen puts there, likewise.
    property real endSpace: 0
    readonly property var inputMethod: Qt.inputMethod
    /// Points that a keyboard on the screen covers: the last rows can be scrolled above it.
    property real coveredHeight: inputMethod.visible ? inputMethod.keyboardRectangle.height : 0
    property alias header: list.header
    /// Whether a pull uncovers a search field.
    property alias searchOffered: search.offered
    /// Whether a row's menu is up: its row looks pressed meanwhile.
    property bool menuShown: false
    property alias currentIndex: list.currentIndex
    readonly property alias flickable: list
    /// The state of the rows: which are pressed, chosen or swiped open.
    readonly property alias rows: tableState
    signal swipeButtonTapped(int section, int row, int index, bool leading)
    signal menuRequested(int section, int row)
    signal searchTapped()

    readonly property bool rowsMove: table.rowsFade || table.removalAnimated
    /// A RowMotion, made when rows first move. Named by its type, it would be loaded before a list shows.
    property var motion: null
    onRowsMoveChanged: {
        if (rowsMove && motion === null) {
            motion = Qt.createComponent("RowMotion.qml").createObject(view, {"list": list});
        }
    }

    /// The line's height before the last change. A list that was at its top then stays there.
    property real lineSpaceBefore: 0
    function keepTop() {
        const room = topSpace + search.space;
        if (lineSpaceBefore !== lineSpace && list.contentY <= list.originY - lineSpaceBefore - room + 0.5) {
            list.contentY = list.originY - lineSpace - room;
        }
        lineSpaceBefore = lineSpace;
    }

    visible: !table.hidden
    activeFocusOnTab: table.rows > 0
    onFocusChanged: {
        if (!focus) {
            choice.forget();
        }
    }
    readsDownwards: true
    Accessible.role: Accessible.List
    Accessible.name: label

    function closeSwipes() {
        tableState.closeSwipes();
    }
    function pull() {
        if (refreshControl !== null) {
            refreshControl.pull();
        }
    }
    TableState {
        id: tableState

        table: view.table
        delegate: view.delegate
        choice: choice
        sideMargin: Theme.sideMargin(view.width, view.measure)
        currentIndex: list.currentIndex
        listHasKeyboard: list.activeFocus && !swipeHasKeyboard
        onRowTapped: (index) => list.turnTo(index)
        onKeyboardReturned: (list.currentItem ?? list).forceActiveFocus(Qt.OtherFocusReason)
        onSwipeButtonTapped: (section, row, index, leading) => view.swipeButtonTapped(section, row, index, leading)
        onMenuRequested: (section, row) => view.menuRequested(section, row)
    }
    RowChoice {
        id: choice

        table: view.table
    }
    TableKeys {
        id: keys

        list: list
        rows: tableState
        choice: choice
        onPulled: view.pull()
        onTurned: (index) => list.turnTo(index)
    }
    ListView {
        id: list

        /// Whether a row is held. The state's `pressedIndex` also tells of a row that was chosen.
        property bool pressedRow: false

        /// Whether a person has turned to a row.
        property bool turned: false

        function turnTo(index: int) {
            turned = true;
            currentIndex = index;
        }

        /// Makes the row at once by scrolling to it. Nothing moves when the row exists already.
        function bringIn(index: int) {
            if (index >= 0 && index < count && itemAtIndex(index) === null) {
                positionViewAtIndex(index, ListView.Contain);
            }
        }

        anchors.fill: parent
        model: view.table
        reuseItems: true
        focus: true
        keyNavigationEnabled: false
        // A list opens at its beginning, with the heading above its current row.
        highlightFollowsCurrentItem: turned
        highlightMoveDuration: Theme.settle
        highlightResizeDuration: 0
        // Where cells cost requests, rows out of view must not be made.
        cacheBuffer: view.table.makesCellsInSteps ? 0 : 120
        topMargin: (header === null ? view.topSpace : 0) + view.lineSpace + search.space
        onTopMarginChanged: view.keepTop()
        bottomMargin: Theme.groupGap + view.endSpace + view.coveredHeight
        currentIndex: -1
        boundsBehavior: Flickable.DragAndOvershootBounds
        add: view.motion !== null && view.table.rowsFade ? view.motion.fadeIn : null
        remove: view.motion === null ? null : view.table.removalAnimated ? view.motion.slideAway
                                                                        : view.table.rowsFade ? view.motion.fadeOut : null
        displaced: view.motion !== null && view.rowsMove ? view.motion.closeUp : null
        delegate: TableRow {
            id: place

            width: list.width
            content: host.item as TableCell
            swipe: swipeCell as SwipeCell
            focusable: !isHeader
            pressAction: selectable
            headerSpace: index === 0 ? 12 - view.topSpace : Theme.sectionGap
            commands: swipeCell.commands
            Accessible.role: isHeader ? Accessible.Heading : Accessible.ListItem
            Accessible.name: !isHeader ? content !== null ? content.accessibleText : ""
                                       : header.item !== null ? header.item.Accessible.name : ""
            Accessible.description: content !== null ? content.accessibleDetail : ""
            Accessible.selectable: selectable
            Accessible.selected: swipeCell.highlighted
            onAccessiblePressed: tableState.activate(index, selectable)
            onAccessibleCommand: (command) => swipeCell.doCommand(command)
            onActiveFocusChanged: {
                // A screen reader that focuses a row asks for its neighbours at once, so the list makes them now, not
                // when idle.
                if (activeFocus) {
                    list.turnTo(index);
                    if (visualFocus) {
                        list.bringIn(index - 1);
                    }
                    if (visualFocus || list.cacheBuffer === 0) {
                        list.bringIn(index + 1);
                    }
                }
            }
            onVisualFocusChanged: {
                if (visualFocus) {
                    tableState.keyboardUsed = true;
                }
            }
            // A pooled row is hidden; otherwise every scrolled frame would still move it and look through it.
            ListView.onReused: {
                visible = true;
                x = 0; // A list sets only y of its rows, and a row that slid away still lies to the side.
                opacity = 1; // Likewise one that faded away.
                host.pooled = false;
                configure();
            }
            ListView.onPooled: {
                swipeCell.reset();
                host.pooled = true;
                visible = false;
            }

            readonly property bool focused: tableState.currentIndex === index && tableState.listHasKeyboard
            /// A gap separates sections without a header.
            readonly property real gap: firstInSection && section > 0 && !sectionHasHeader ? Theme.groupGap : 0
            readonly property bool besidePressed: index === tableState.pressedIndex || index - 1 === tableState.pressedIndex
                                                  || chosen || index - 1 === choice.index
            readonly property bool chosen: choice.index === index

            // While the table is torn down, this binding runs once more and finds no state.
            readonly property real rowHeight: tableState !== null ? tableState.table.rowHeight : 0

            implicitHeight: isHeader ? header.implicitHeight
                                     : gap + Math.max(Math.round(rowHeight * Theme.textScale), host.implicitHeight)
                                       + foot.height
            height: implicitHeight

            onChosenChanged: showChosen()
            onContentChanged: showChosen()

            function showChosen() {
                if (content !== null) {
                    content.chosen = chosen;
                }
            }
            function configure() {
                swipeCell.reset();
                host.configure();
            }

            LaterItem {
                id: header

                visible: place.isHeader
                wanted: place.isHeader
                source: "qrc:/Lodestar/Kit/RowHeader.qml"
                subject: place
                x: tableState.sideMargin
                width: place.width - 2 * x
            }
            SwipeCell {
                id: swipeCell

                visible: !place.isHeader
                x: tableState.sideMargin
                y: place.gap
                width: place.width - 2 * x
                height: place.height - place.gap - foot.height
                buttons: place.content !== null ? place.content.swipeButtons : []
                leadingButtons: place.content !== null ? place.content.leadingSwipeButtons : []
                leadingExpansion: place.content !== null ? place.content.leadingSwipeExpansion : -1
                pressable: place.selectable
                offersMenu: place.content !== null && place.content.offersMenu
                highlighted: (tableState.selectedIndex === place.index && place.selectable) || place.chosen
                menuShown: view.menuShown && offersMenu && list.currentIndex === place.index
                focusShown: place.focused && tableState.keyboardUsed
                onClicked: {
                    tableState.keyboardUsed = false;
                    tableState.rowTapped(place.index);
                    if (choice.splits) {
                        list.forceActiveFocus(Qt.MouseFocusReason);
                    }
                    if (tableState.hasOpenSwipe) {
                        tableState.closeSwipes();
                    } else if (!keys.isShownBeside(place)) {
                        tableState.activate(place.index, place.selectable);
                    }
                }
                onOpening: tableState.swipeOpens(swipeCell)
                onMenuRequested: {
                    tableState.keyboardUsed = false;
                    tableState.rowTapped(place.index);
                    choice.act(place.index);
                    tableState.menuOf(place.section, place.row);
                }
                onPressedLookChanged: {
                    tableState.rowPressed(place.index, pressedLook);
                    list.pressedRow = pressedLook && !highlighted && !menuShown;
                }
                onEscaped: tableState.closeSwipes()
                onButtonTapped: (button, leading) => {
                    tableState.closeSwipes();
                    choice.act(place.index);
                    tableState.swipeButtonTapped(place.section, place.row, button, leading);
                }

                CellHost {
                    id: host

                    anchors.fill: parent
                    table: tableState.table
                    index: place.index
                    listWidth: place.width
                    delegate: tableState.delegate
                }
                Loader {
                    active: place.chosen
                    source: active ? "ChosenMark.qml" : ""
                    x: Theme.mirrored ? parent.width - width : 0
                    y: 10
                    height: parent.height - 20
                }
            }
            SectionFoot {
                id: foot

                text: place.sectionFooter
                x: tableState.sideMargin + Theme.rowStart
                y: place.height - height
                width: place.width - 2 * x
            }
            CardCorners {
                visible: !place.isHeader && (Theme.strong || place.firstInSection || place.lastInSection)
                x: swipeCell.x
                y: swipeCell.y
                width: swipeCell.width
                height: swipeCell.height
                roundTop: place.firstInSection
                roundBottom: place.lastInSection
            }
            Hairline {
                // Distances from the row's ends; they grow so that the hairline makes way for uncovered buttons.
                readonly property real start: tableState.table.separatorLeft + Math.max(0, -swipeCell.reveal)
                readonly property real end: Math.max(tableState.table.separatorRight, swipeCell.reveal)

                visible: !place.isHeader && !place.firstInSection && !place.besidePressed
                x: swipeCell.x + (Theme.mirrored ? end : start)
                width: Math.max(0, swipeCell.width - start - end)
            }
        }

        onMovementStarted: view.closeSwipes()

        // Takes clicks beside the rows and on headers.
        MouseArea {
            parent: list.contentItem
            z: -1
            enabled: tableState.hasOpenSwipe
            y: list.originY - list.topMargin
            width: list.width
            height: Math.max(list.height, list.contentHeight + list.topMargin + list.bottomMargin)
            onClicked: view.closeSwipes()
        }
        onActiveFocusChanged: {
            if (activeFocus) {
                keys.keepCurrent();
            } else if (!tableState.swipeHasKeyboard) {
                tableState.keyboardUsed = false;
            }
        }
        onDraggingChanged: {
            if (!dragging && indicator.progress >= 1) {
                view.pull();
            }
        }
        // There is always a current row, so that the keyboard focus lands on a row and not on the list.
        onCountChanged: keys.keepCurrent()
        Keys.onPressed: (event) => event.accepted = keys.handle(event.key, event.modifiers)
    }
    Binding {
        target: view.table
        property: "touched"
        value: list.moving || tableState.hasOpenSwipe || list.pressedRow
    }
    PullSearch {
        id: search

        list: list
        topSpace: view.topSpace + view.lineSpace
        lineSpace: view.lineSpace
        x: tableState.sideMargin
        width: list.width - 2 * x
        onTapped: view.searchTapped()
    }
    ScrollMark {
        flickable: list
    }
    PullIndicator {
        id: indicator

        anchors.horizontalCenter: parent.horizontalCenter
        visible: view.refreshControl !== null && overshoot > 0
        overshoot: -list.verticalOvershoot
        refreshing: view.refreshControl !== null && view.refreshControl.refreshing
    }
}
