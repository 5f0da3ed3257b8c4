// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Charts
import Lodestar.Kit
import Lodestar.Views

/// The dashboard: three figures and two pies. Cards keep their places while their content loads, so that nothing moves
/// when it arrives.
PageScaffold {
    id: scene

    readonly property DashboardTableViewController dashboard: controller as DashboardTableViewController

    readonly property int widthClass: Theme.widthClass(Window.width)
    readonly property bool compact: widthClass === Theme.compactWidth
    readonly property int measure: widthClass === Theme.wideWidth ? Theme.dashboardMeasure : Theme.measure
    readonly property real pieDiameter: widthClass === Theme.wideWidth ? 360 : Math.min(240, 0.62 * Window.width)
    readonly property real shortestSide: Math.min(Window.width, Window.height)

    function reportSize() {
        dashboard.setViewSize(width, shortestSide);
    }
    function scroll(by: real) {
        page.contentY = Math.max(0, Math.min(page.contentHeight - page.height, page.contentY + by));
    }

    onWidthChanged: reportSize()
    onShortestSideChanged: reportSize()

    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Down: scroll(44); break;
        case Qt.Key_Up: scroll(-44); break;
        case Qt.Key_PageDown: scroll(page.height - 44); break;
        case Qt.Key_PageUp: scroll(44 - page.height); break;
        case Qt.Key_Home: scroll(-page.contentHeight); break;
        case Qt.Key_End: scroll(page.contentHeight); break;
        default: return;
        }
        event.accepted = true;
    }

    bar: RootBar {
        controller: scene.controller
        measure: scene.measure
        trailing: FindButton {
            screen: scene.controller
        }
    }
    scrollView: page

    /// The heading of a card. It appears with the card's content; its place is kept free until then.
    component Heading: Item {
        id: heading

        required property ViewOutlet outlet
        required property string text
        property real space: Theme.sectionGap
        property readingMark mark

        /// The mark stands below the text where both do not fit.
        readonly property bool stacked: end.visible && words.implicitWidth + end.wanted + 12 > room
        readonly property real room: width - 2 * Theme.rowStart

        width: parent ? parent.width : 0
        implicitHeight: space + words.height + (stacked ? end.height : 0) + 8
        Accessible.role: Accessible.Heading
        Accessible.name: Sentence.joined([text, mark.spoken])
        Accessible.ignored: outlet.hidden

        Label {
            id: words

            text: heading.text
            size: Theme.captionSize
            color: Theme.ink2
            visible: !heading.outlet.hidden
            anchors.left: parent.left
            anchors.leftMargin: Theme.rowStart
            width: parent.width - Theme.rowStart - Theme.rowEnd
            y: heading.space
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        ReadingLabel {
            id: end

            visible: !heading.outlet.hidden && mark.text !== ""
            mark: heading.mark
            grounded: true
            atEnd: !heading.stacked
            quietColor: Theme.ink3
            room: heading.room
            x: heading.stacked === Theme.mirrored ? heading.width - width - Theme.rowStart : Theme.rowStart
            y: heading.space + (heading.stacked ? words.height : 0)
        }
    }

    component Figure: Item {
        id: figure

        required property LabelOutlet count
        required property ViewOutlet status
        required property string caption

        implicitHeight: number.height + words.height
        Accessible.role: Accessible.StaticText
        Accessible.name: Sentence.joined([caption, count.text])
        Accessible.ignored: count.hidden

        CountingLabel {
            id: number

            value: figure.count.text
            visible: !figure.count.hidden
            size: Theme.figureSize
            width: parent.width
            height: lineHeight
            horizontalAlignment: Text.AlignHCenter
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 17
            Accessible.ignored: true
        }
        Label {
            id: words

            text: figure.caption
            size: Theme.noteSize
            color: Theme.ink2
            visible: !figure.status.hidden
            width: parent.width
            y: number.height
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }
    }

    component ChartCard: Rectangle {
        id: card

        required property PieChartView chart
        required property IndicatorOutlet indicator
        /// The text when there is nothing to chart.
        required property string emptyText

        implicitHeight: Theme.textScale > 1 ? Math.max(scene.dashboard.chartRowHeight, pie.implicitHeight)
                                            : scene.dashboard.chartRowHeight
        radius: Theme.cardRadius
        color: Theme.card
        border { width: Theme.outlineWidth; color: Theme.outline }

        PieChart {
            id: pie

            outlet: card.chart
            visible: !card.chart.hidden
            anchors.fill: parent
            maximumDiameter: scene.pieDiameter
            cardColor: Theme.card
            textColor: Theme.ink2
            fontFamily: Theme.family
            textScale: Theme.textScale
            reducedMotion: Theme.reducedMotion
            mirrored: Theme.mirrored
            focusColor: Theme.accentInk
        }
        Label {
            visible: pie.visible && card.chart.accessibleText === ""
            text: card.emptyText
            size: Theme.stateSize
            color: Theme.ink2
            anchors.centerIn: parent
            width: Math.min(280 * Theme.textScale, parent.width - 40)
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Spinner {
            outlet: card.indicator
            anchors.centerIn: parent
        }
    }

    ScrollPage {
        id: page

        measure: scene.measure
        topSpace: 0
        visible: scene.dashboard.noDataView.hidden

        Heading {
            outlet: scene.dashboard.corvelOverviewLabel
            text: qsTr("Corvel Overview")
            mark: scene.dashboard.marks.answered
            space: 4
        }
        FigureCard {
            id: figures

            topPadding: scene.compact ? 16 : 24
            rowSpacing: 24
            columnSpacing: 12
            ruleInset: 4
            ruled: !scene.dashboard.corvelOnlineCount.hidden

            Figure {
                count: scene.dashboard.corvelOnlineCount
                status: scene.dashboard.corvelOnlineStatus
                caption: qsTr("Corvels Online")
                width: figures.figureWidth
            }
            Figure {
                count: scene.dashboard.attentionLEDCount
                status: scene.dashboard.attentionLEDStatus
                caption: qsTr("Attention LEDs")
                width: figures.figureWidth
            }
            Figure {
                count: scene.dashboard.totalEventsCount
                status: scene.dashboard.totalEventsStatus
                caption: qsTr("Serviceable Events")
                width: figures.figureWidth
            }
            OutletLabel {
                parent: figures
                outlet: scene.dashboard.waitingLabel
                size: Theme.stateSize
                color: Theme.ink2
                anchors.centerIn: parent
                width: parent.width - 40
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
        }
        Item {
            visible: scene.dashboard.marks.foot !== ""
            width: parent ? parent.width : 0
            implicitHeight: foot.height + 8

            Label {
                id: foot

                text: scene.dashboard.marks.foot
                visible: !scene.dashboard.corvelOverviewLabel.hidden
                size: Theme.captionSize
                color: scene.dashboard.marks.old ? Theme.orangeOnGround : Theme.ink2
                anchors.left: parent.left
                anchors.leftMargin: Theme.rowStart
                y: 8
                width: parent.width - 2 * Theme.rowStart
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Grid {
            id: charts

            readonly property bool paired: !scene.compact
            readonly property real cell: paired ? (width - columnSpacing) / 2 : width

            width: parent.width
            columns: paired ? 2 : 1
            columnSpacing: 12

            Column {
                width: charts.cell

                Heading {
                    outlet: scene.dashboard.managedSystemLabel
                    text: qsTr("Managed Systems")
                    mark: scene.dashboard.marks.systems
                }
                ChartCard {
                    chart: scene.dashboard.manSysPieChartView
                    indicator: scene.dashboard.manSysLoadingIndicator
                    emptyText: qsTr("No managed systems are known.")
                    width: parent.width
                }
            }
            Column {
                width: charts.cell

                Heading {
                    outlet: scene.dashboard.lparLabel
                    text: qsTr("Logical Partitions")
                    mark: scene.dashboard.marks.partitions
                }
                ChartCard {
                    chart: scene.dashboard.lparPieChartView
                    indicator: scene.dashboard.lParLoadingIndicator
                    emptyText: qsTr("No logical partitions are known.")
                    width: parent.width
                }
            }
            EventBars {
                id: eventBars

                visible: scene.dashboard.bars.shown
                bars: scene.dashboard.bars.events
                width: charts.cell
                cardHeight: charts.paired ? stateBars.wantedCardHeight : 0
            }
            StateBars {
                id: stateBars

                visible: scene.dashboard.bars.shown && states.length > 0
                states: scene.dashboard.bars.states
                width: charts.cell
                cardHeight: charts.paired ? eventBars.wantedCardHeight : 0
            }
        }
    }
    NoContent {
        anchors.fill: parent
        visible: !scene.dashboard.noDataView.hidden
        picture: "no_data_consoles"
        text: qsTr("No consoles yet.")
        actionText: qsTr("Add Corvel")
        onAction: scene.dashboard.addConsole()
    }
}
