// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Charts
import Lodestar.Kit
import Lodestar.Views

/// The metrics of a managed system over time. Lying, the chart takes the screen and the summary is below it; upright,
/// both are seen.
PageScaffold {
    id: scene

    readonly property LargeChartViewController large: controller as LargeChartViewController
    readonly property var colors: [Theme.chartOrange, Theme.chartGreen, Theme.chartBlue]

    Keys.onPressed: event => page.scrollByKey(event)

    /// Bars are paler than their line would be, so that the lines before them are seen.
    function drawnColors(drawn: var, bars: bool): var {
        return drawn.map(series => bars && series === 1 ? Qt.alpha(colors[series], 0.7) : colors[series]);
    }

    bar: NavigationBar {
        controller: scene.controller
        measure: page.measure
        titleView: TitleView {
            titleOutlet: scene.large.header.titleLabel
            subtitleOutlet: scene.large.header.subtitleLabel
            fallback: qsTr("Performance Monitoring")
        }
        trailing: IconButton {
            objectName: "shareButton"
            iconName: "share"
            text: qsTr("Share")
            onClicked: scene.large.share()
        }
    }
    scrollView: page

    ScrollPage {
        id: page

        readonly property bool lies: width > height
        readonly property bool narrow: width < 600

        measure: 1400
        topSpace: 4

        Flow {
            id: choices

            width: parent.width
            spacing: 8

            SegmentedControl {
                titles: [qsTr("Processors"), qsTr("Memory")]
                label: qsTr("Metrics")
                width: page.narrow ? choices.width : Math.min(choices.width, 180 * Theme.textScale)
                height: page.narrow ? implicitHeight : firstChip.height
                currentIndex: scene.large.typeSegmentedControl.selectedSegmentIndex
                onActivated: index => scene.large.selectedSegmentedIndex(index)
            }
            Repeater {
                model: scene.large.seriesNames.length

                Chip {
                    required property int index

                    text: scene.large.seriesNames[index]
                    count: scene.large.latest[index] ?? ""
                    on: scene.large.shown[index]
                    stroke: scene.colors[index]
                    room: choices.width
                    onToggled: scene.large.toggleSeries(index)
                }
            }
            Chip {
                id: firstChip

                objectName: "barsChip"
                text: qsTr("Bars")
                on: scene.large.barsShown
                room: choices.width
                Accessible.name: qsTr("Allocated as bars")
                onToggled: scene.large.barsShown = !scene.large.barsShown
            }
        }
        Item {
            width: 1
            height: 12
        }
        Rectangle {
            id: card

            readonly property real above: page.topSpace + choices.height + 12
            readonly property real free: page.height - above

            objectName: "largeChartCard"
            width: parent.width
            implicitHeight: page.lies ? Math.max(240, free - 16)
                                      : Math.max(320, Math.min(640, free - summary.height - 12 - Theme.groupGap))
            radius: Theme.cardRadius
            color: Theme.card
            border { width: Theme.outlineWidth; color: Theme.outline }

            // Time runs to the right in every language, and what lies on it goes with it.
            LayoutMirroring.enabled: false
            LayoutMirroring.childrenInherit: true

            ReadableChart {
                id: chart

                /// Points above the chart's own room that a plate of one line takes.
                readonly property real head: Math.round(16 * Theme.textScale) + 4

                outlet: scene.large.chartView
                y: head
                width: parent.width
                height: parent.height - head
                cardColor: Theme.card
                textColor: Theme.ink2
                gridColor: Theme.chartGrid
                axisColor: Theme.faint
                seriesColors: scene.drawnColors(scene.large.drawnSeries, scene.large.barsShown)
                fontFamily: Theme.family
                textScale: Theme.textScale
                reducedMotion: Theme.reducedMotion
                focusColor: Theme.accentInk
                readText: scene.large.readText
                // What is read step by step is heard: readers do not follow a description.
                onReadTextChanged: {
                    if (activeFocus) {
                        announcement.say(readText);
                    }
                }
            }
            Announcement {
                id: announcement
            }
            Item {
                id: marks

                readonly property real foot: chart.y + chart.plotArea.bottom

                visible: chart.reading
                anchors.fill: parent

                Rectangle {
                    x: Math.round(chart.readX - 0.5)
                    y: plate.stacked ? chart.y + chart.plotArea.top : plate.y + plate.height
                    width: 1
                    height: marks.foot - y
                    color: Theme.ink2
                }
                Repeater {
                    model: chart.readYs.length

                    Rectangle {
                        required property int index
                        readonly property real at: chart.readYs[index] ?? NaN

                        visible: !isNaN(at)
                        // Whole points: the software renderer makes no circle of anything else.
                        x: Math.round(chart.readX) - 5
                        y: visible ? Math.round(chart.y + at) - 5 : 0
                        width: 10
                        height: 10
                        radius: 5
                        color: Theme.card
                        border.width: 2
                        border.color: scene.colors[scene.large.drawnSeries[index]] ?? Theme.ink2
                    }
                }
                ChartPlate {
                    id: plate

                    readonly property real end: marks.width - 8 - (whole.visible ? whole.width : 0)
                    readonly property real beside: chart.readX + 12 + width > end ? chart.readX - 12 - width
                                                                                : chart.readX + 12

                    objectName: "chartPlate"
                    time: scene.large.readTime
                    values: scene.large.readValues
                    colors: scene.colors.filter((_, series) => scene.large.shown[series])
                    room: end - 8
                    x: Math.max(8, Math.min(stacked ? beside : Math.round(chart.readX - width / 2), end - width))
                    y: 6
                }
            }
            PlainButton {
                id: whole

                objectName: "showAllButton"
                visible: scene.large.chartView.zoomed
                text: qsTr("Show all")
                size: Theme.stateSize
                x: parent.width - width
                y: Math.min(0, chart.y + 18 - height)
                onClicked: chart.showWhole()
            }
        }
        Item {
            width: 1
            height: 12
        }
        PerformanceSummary {
            id: summary

            rows: scene.large.summary
            foot: scene.large.leftOut
            width: parent.width
        }
    }

    KeyAction {
        name: "savePoints"
        enabled: scene.visible
        onActivated: scene.large.savePoints()
    }
    GridMenu {
        outlet: scene.large.shareMenu
    }
}
