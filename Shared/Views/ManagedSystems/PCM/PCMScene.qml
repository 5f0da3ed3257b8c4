// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Charts
import Lodestar.Kit
import Lodestar.Views

/// The performance of a managed system: processors or memory, as latest values and as lines. Cards keep their places
/// while their content loads, so that nothing moves when it arrives.
PageScaffold {
    id: scene

    readonly property PCMViewController performance: controller as PCMViewController
    readonly property string unit: performance.typeSegmentedControl.selectedSegmentIndex === 0 ? qsTr("units") : qsTr("GB")

    Keys.onPressed: event => page.scrollByKey(event)

    bar: NavigationBar {
        controller: scene.controller
        titleView: TitleView {
            titleOutlet: scene.performance.header.titleLabel
            subtitleOutlet: scene.performance.header.subtitleLabel
            fallback: qsTr("Performance Monitoring")
        }
        // Never both: the one shows after a failure, the other once there is something to chart.
        trailing: [
            OutletButton {
                outlet: scene.performance.rightBarButton
            },
            IconButton {
                objectName: "largeChartButton"
                iconName: "performance"
                text: qsTr("Large Chart")
                visible: scene.performance.hasLargeChart && !scene.performance.chartView.hidden
                onClicked: scene.performance.openLargeChart()
            }
        ]
    }
    scrollView: page

    /// One latest value, below a stroke in the colour of its line.
    component Figure: Item {
        id: figure

        required property LabelOutlet value
        required property IndicatorOutlet indicator
        required property string caption
        required property string unit
        required property color strokeColor
        readonly property real startPadding: scene.width < 375 ? 14 : Theme.rowStart

        implicitHeight: words.height + number.height
        Accessible.role: Accessible.StaticText
        Accessible.name: value.hidden || value.text === "" ? caption : Sentence.joined([caption, value.text + (unitLabel.visible ? " " + unit : "")])

        Row {
            id: key

            anchors.left: parent.left
            anchors.leftMargin: figure.startPadding
            anchors.right: parent.right
            anchors.rightMargin: 4
            spacing: 6

            Rectangle {
                width: 16
                height: 2
                radius: 1
                color: figure.strokeColor
                anchors.verticalCenter: parent.verticalCenter
            }
            Label {
                id: words

                text: figure.caption
                size: Theme.noteSize
                color: Theme.ink2
                width: Math.min(captionMeasure.advanceWidth + 1, key.width - 22)
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 10
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        OutletLabel {
            id: number

            outlet: figure.value
            size: Theme.valueSize
            y: words.height
            height: lineHeight
            anchors.left: parent.left
            anchors.leftMargin: figure.startPadding
            width: Math.min(measure.advanceWidth + 1, figure.width - figure.startPadding - 4
                                                      - (unitLabel.visible ? unitLabel.implicitWidth + 3 : 0))
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        TextMetrics {
            id: captionMeasure

            font.family: Theme.family
            font.pixelSize: Math.round(Theme.noteSize * Theme.textScale)
            text: figure.caption
        }
        TextMetrics {
            id: measure

            font.family: Theme.family
            font.pixelSize: Math.round(Theme.valueSize * Theme.textScale)
            text: figure.value.text
        }
        Label {
            id: unitLabel

            visible: !figure.value.hidden && /[0-9]/.test(figure.value.text)
            text: figure.unit
            size: Theme.noteSize
            color: Theme.ink2
            anchors.left: number.right
            anchors.leftMargin: 2
            y: number.y + number.baselineOffset - baselineOffset
            Accessible.ignored: true
        }
        Spinner {
            outlet: figure.indicator
            size: 16
            y: words.height + (number.height - height) / 2
            anchors.left: parent.left
            anchors.leftMargin: figure.startPadding
        }
    }

    ScrollPage {
        id: page

        topSpace: 4

        SegmentedControl {
            id: segments

            width: page.width < 600 ? parent.width : Math.min(parent.width, 360)
            anchors.horizontalCenter: parent.horizontalCenter
            titles: [qsTr("Processors"), qsTr("Memory")]
            label: qsTr("Metrics")
            currentIndex: scene.performance.typeSegmentedControl.selectedSegmentIndex
            onActivated: index => scene.performance.selectedSegmentedIndex(index)
        }
        Item {
            width: 1
            height: 12
        }
        FigureCard {
            id: values

            rowSpacing: 20

            Figure {
                value: scene.performance.totalLabel
                indicator: scene.performance.totalIndicator
                caption: qsTr("Total")
                unit: scene.unit
                strokeColor: Theme.chartOrange
                width: values.figureWidth
            }
            Figure {
                value: scene.performance.allocatedLabel
                indicator: scene.performance.allocatedIndicator
                caption: qsTr("Allocated")
                unit: scene.unit
                strokeColor: Theme.chartGreen
                width: values.figureWidth
            }
            Figure {
                value: scene.performance.usedLabel
                indicator: scene.performance.usedIndicator
                caption: qsTr("Used")
                unit: scene.unit
                strokeColor: Theme.chartBlue
                width: values.figureWidth
            }
        }
        Item {
            width: 1
            height: 12
        }
        Rectangle {
            id: card

            readonly property real above: page.topSpace + segments.height + values.height + 24
            /// Height in points for the legend, so that plot and axis keep 320 to 640 whatever the legend needs.
            readonly property real legend: 42 + 60 * (Theme.textScale - 1)

            objectName: "chartCard"
            width: parent.width
            /// At least 320, or in lower windows what is seen at once when the page is scrolled to it.
            readonly property real least: Math.min(320, Math.max(160, page.height - legend - 24))
            implicitHeight: legend + Math.max(least, Math.min(640, page.height - above - Theme.groupGap - legend))
            radius: Theme.cardRadius
            color: Theme.card
            border { width: Theme.outlineWidth; color: Theme.outline }

            PlotChart {
                outlet: scene.performance.chartView
                visible: !scene.performance.chartView.hidden
                anchors.fill: parent
                anchors.bottomMargin: 4
                cardColor: Theme.card
                textColor: Theme.ink2
                gridColor: Theme.chartGrid
                axisColor: Theme.faint
                seriesColors: [Theme.chartOrange, Theme.chartGreen, Theme.chartBlue]
                fontFamily: Theme.family
                textScale: Theme.textScale
                reducedMotion: Theme.reducedMotion
                mirrored: Theme.mirrored
                focusColor: Theme.accentInk
            }
            Column {
                anchors.centerIn: parent
                width: Math.min(280 * Theme.textScale, parent.width - 40)
                spacing: 12

                Spinner {
                    outlet: scene.performance.fetchingActivityView
                    anchors.horizontalCenter: parent.horizontalCenter
                }
                OutletLabel {
                    outlet: scene.performance.fetchingLabel
                    size: Theme.stateSize
                    color: Theme.ink2
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                }
            }
        }
        Item {
            width: 1
            height: 12
            visible: summary.visible
        }
        PerformanceSummary {
            id: summary

            objectName: "summary"
            rows: scene.performance.chartView.hidden ? [] : scene.performance.summary
            foot: scene.performance.leftOut
            width: parent.width
        }
    }
}
