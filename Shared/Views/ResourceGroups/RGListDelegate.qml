// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A resource group's row: tag and name, how many resources at the end, and below four counts that stand in columns. With
/// large text the number of resources stands below the name, and the columns break into lines where they do not fit;
/// otherwise a row keeps its height however narrow it is, and what stands in it gives way. Until the counts are known, the
/// row says that they are asked for.
TableCell {
    id: row

    required property rgListCell cell

    readonly property real scale100: Theme.textScale
    readonly property bool stacked: Theme.stacked
    readonly property real tagSize: Math.round(28 * Theme.badgeScale)
    /// The drawing's own margin hangs out, so that the tag's ink starts where other rows' text does.
    readonly property real tagStart: Theme.rowStart - 2
    readonly property real textStart: tagStart + tagSize + 14

    accessibleText: cell.accessibleText
    selectable: false
    implicitHeight: content.height + Math.round(22 * scale100)

    component Counter: Item {
        id: counter

        required property cellLabel count
        required property string mark
        required property color markColor

        readonly property bool zero: count.text === "0"

        implicitWidth: shape.width + gap + number.implicitWidth
        implicitHeight: number.height
        readonly property real gap: Theme.stacked ? 10 : 6

        StateMark {
            id: shape

            mark: counter.mark
            color: counter.zero ? Theme.faint : counter.markColor
            anchors.left: parent.left
            y: (number.lineHeight - height) / 2
        }
        Label {
            id: number

            text: counter.count.text
            size: Theme.stateSize
            color: counter.zero ? Theme.ink3 : Theme.ink
            anchors.left: shape.right
            anchors.leftMargin: counter.gap
            width: Math.max(0, counter.width - shape.width - counter.gap)
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
            Accessible.ignored: true
        }
    }

    Icon {
        name: row.cell.groupTag.imageName
        size: row.tagSize
        directional: true
        anchors.left: parent.left
        anchors.leftMargin: row.tagStart
        y: row.stacked ? content.y + Math.round((name.lineHeight - height) / 2) : Math.round((row.height - height) / 2)
    }
    Item {
        id: content

        anchors.left: parent.left
        anchors.leftMargin: row.textStart
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd
        y: Math.round((row.height - height) / 2)
        height: counters.y + counters.height

        Label {
            id: name

            text: row.cell.groupNameLabel.text
            elide: row.stacked ? Text.ElideNone : Text.ElideMiddle
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            anchors.left: parent.left
            width: Math.max(0, parent.width - (row.stacked ? 0 : resources.width + 12))
            Accessible.ignored: true
        }
        Label {
            id: resources

            text: row.cell.resourceCountLabel.text
            size: Theme.captionSize
            color: Theme.ink2
            width: Math.min(implicitWidth, Math.round(parent.width * (row.stacked ? 1 : 0.5)))
            elide: row.stacked ? Text.ElideNone : Text.ElideMiddle
            // By place, not by anchors: an item that changes from one side's anchor to the other's loses its width.
            x: row.stacked !== Theme.mirrored ? 0 : parent.width - width
            y: row.stacked ? name.height : name.baselineOffset - baselineOffset
            Accessible.ignored: true
        }
        Grid {
            id: counters

            readonly property real column: Math.round((Window.width < 375 ? 56 : 64) * row.scale100)
            readonly property real widest: Math.max(good.implicitWidth, off.implicitWidth, alert.implicitWidth,
                                                    error.implicitWidth) + 12 * row.scale100
            /// Columns give way by a fifth before they break.
            readonly property real least: Math.max(widest, 0.8 * column)

            // Kept as high as it will be.
            opacity: row.cell.updating ? 0 : 1
            columns: !row.stacked || 4 * least <= parent.width ? 4 : 2 * least <= parent.width ? 2 : 1
            readonly property real share: Math.floor(parent.width / columns)
            readonly property real drawn: Math.min(share, Math.max(widest, Math.min(column, share)))

            rowSpacing: Math.round(4 * row.scale100)
            anchors.left: parent.left
            y: (row.stacked ? resources.y + resources.height : name.height) + Math.round(6 * row.scale100)

            Counter {
                id: good

                count: row.cell.goodCountLabel
                mark: "good"
                markColor: Theme.successGreen
                width: counters.drawn
            }
            Counter {
                id: off

                count: row.cell.offCountLabel
                mark: "off"
                markColor: Theme.failedRed
                width: counters.drawn
            }
            Counter {
                id: alert

                count: row.cell.alertCountLabel
                mark: "alert"
                markColor: Theme.systemOrange
                width: counters.drawn
            }
            Counter {
                id: error

                count: row.cell.errorCountLabel
                mark: "error"
                markColor: Theme.systemRed
                width: counters.drawn
            }
        }
        Spinner {
            id: spinner

            running: row.cell.updating
            size: Math.round(16 * Theme.badgeScale)
            anchors.left: parent.left
            y: counters.y + Math.round((asking.lineHeight - height) / 2)
            Accessible.ignored: true
        }
        Label {
            id: asking

            visible: row.cell.updating
            text: qsTr("updating...")
            size: Theme.captionSize
            color: Theme.ink2
            anchors.left: spinner.right
            anchors.leftMargin: 8
            y: counters.y
            Accessible.ignored: true
        }
    }
}
