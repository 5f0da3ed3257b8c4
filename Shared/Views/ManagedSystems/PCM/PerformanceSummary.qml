// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Lowest, mean, highest and last of each series with their times: a table, or with large text a card a series. Nothing
/// is shown without rows.
Column {
    id: summary

    required property var rows
    /// Stands below the cards; empty for nothing.
    property string foot
    readonly property var colors: [Theme.chartOrange, Theme.chartGreen, Theme.chartBlue]
    readonly property var captions: [qsTr("Lowest"), qsTr("Mean"), qsTr("Highest"), qsTr("Last")]

    visible: rows.length > 0
    spacing: 12

    /// A stroke in the series' colour and its name.
    component Key: Row {
        id: key

        property int number
        property string name

        spacing: 6

        Rectangle {
            width: 16
            height: 2
            radius: 1
            color: summary.colors[key.number]
            anchors.verticalCenter: parent.verticalCenter
        }
        Label {
            text: key.name
            size: Theme.captionSize
            width: key.width - 22
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    /// A value over its time.
    component Value: Column {
        id: value

        property string number
        property string time

        Label {
            text: value.number
            size: Theme.stateSize
            width: parent.width
            horizontalAlignment: Text.AlignRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            Accessible.ignored: true
        }
        Label {
            text: value.time
            visible: text !== ""
            size: Theme.axisSize
            scaleFactor: Theme.stacked ? Theme.textScale : Theme.barScale
            color: Theme.ink2
            width: parent.width
            horizontalAlignment: Text.AlignRight
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    Rectangle {
        id: table

        readonly property real inner: width - Theme.rowStart - Theme.rowEnd
        readonly property real nameWidth: Math.min(84 * Theme.textScale, inner * 0.3)
        readonly property real columnWidth: Math.min(120, (inner - nameWidth) / 4)

        visible: !Theme.stacked
        width: summary.width
        implicitHeight: lines.height
        radius: Theme.cardRadius
        color: Theme.card
        border { width: Theme.outlineWidth; color: Theme.outline }

        Column {
            id: lines

            width: parent.width

            Item {
                width: parent.width
                height: head.height + 20

                Row {
                    id: head

                    anchors.right: parent.right
                    anchors.rightMargin: Theme.rowEnd
                    y: 11

                    Repeater {
                        model: summary.captions

                        Label {
                            required property string modelData

                            text: modelData
                            size: Theme.captionSize
                            color: Theme.ink2
                            width: table.columnWidth
                            horizontalAlignment: Text.AlignRight
                            fontSizeMode: Text.HorizontalFit
                            minimumPixelSize: 9
                            Accessible.ignored: true
                        }
                    }
                }
            }
            Repeater {
                model: summary.rows.length

                Item {
                    id: line

                    required property int index
                    property performanceSummaryRow blank
                    readonly property performanceSummaryRow row: index < summary.rows.length ? summary.rows[index] : blank

                    width: lines.width
                    height: Math.max(51 * Theme.textScale, figures.height + 17)
                    Accessible.role: Accessible.StaticText
                    Accessible.name: row.spoken

                    InsetHairline {
                        separatorLeft: 10
                        separatorRight: 15
                    }
                    Key {
                        number: line.index
                        name: line.row.name
                        anchors.left: parent.left
                        anchors.leftMargin: Theme.rowStart
                        anchors.right: figures.left
                        y: 10
                    }
                    Row {
                        id: figures

                        anchors.right: parent.right
                        anchors.rightMargin: Theme.rowEnd
                        y: 9

                        Repeater {
                            model: 4

                            Value {
                                required property int index

                                number: line.row.values[index] ?? ""
                                time: line.row.times[index] ?? ""
                                width: table.columnWidth
                            }
                        }
                    }
                }
            }
        }
    }
    Repeater {
        model: Theme.stacked ? summary.rows.length : 0

        Rectangle {
            id: card

            required property int index
            property performanceSummaryRow blank
            readonly property performanceSummaryRow row: index < summary.rows.length ? summary.rows[index] : blank

            width: summary.width
            implicitHeight: facts.height + 24
            radius: Theme.cardRadius
            color: Theme.card
            border { width: Theme.outlineWidth; color: Theme.outline }
            Accessible.role: Accessible.StaticText
            Accessible.name: row.spoken

            Column {
                id: facts

                x: Theme.rowStart
                y: 12
                width: parent.width - Theme.rowStart - Theme.rowEnd
                spacing: 8

                Key {
                    number: card.index
                    name: card.row.name
                    width: parent.width
                }
                Repeater {
                    model: 4

                    Item {
                        id: fact

                        required property int index

                        width: facts.width
                        height: Math.max(caption.height, figure.height)

                        Label {
                            id: caption

                            text: summary.captions[fact.index]
                            size: Theme.captionSize
                            color: Theme.ink2
                            anchors.left: parent.left
                            width: parent.width / 2
                            fontSizeMode: Text.HorizontalFit
                            minimumPixelSize: 10
                            elide: Text.ElideRight
                            Accessible.ignored: true
                        }
                        Value {
                            id: figure

                            number: card.row.values[fact.index] ?? ""
                            time: card.row.times[fact.index] ?? ""
                            anchors.right: parent.right
                            width: parent.width / 2
                        }
                    }
                }
            }
        }
    }
    Label {
        visible: summary.foot !== ""
        text: summary.foot
        size: Theme.captionSize
        color: Theme.ink2
        x: Theme.rowStart
        width: parent.width - 2 * Theme.rowStart
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
