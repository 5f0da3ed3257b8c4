// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A resource group's row: tag and name, the number of resources at the end, and four counts in columns below. With
/// large text the number of resources stands below the name, and the columns wrap where they do not fit. At other text
/// sizes a row keeps its height in any width, and its texts elide. Until the counts are known, the row says that they
/// are being fetched.
TableCell {
    id: row

    required property rgListCell cell

    readonly property real scale100: Theme.textScale
    readonly property bool stacked: Theme.stacked
    readonly property real tagSize: Math.round(28 * Theme.badgeScale)
    /// The picture has a margin of its own; moving it out puts the tag's ink where the text of other rows starts.
    readonly property real tagStart: Theme.rowStart - 2
    readonly property real textStart: tagStart + tagSize + 14

    accessibleText: cell.accessibleText
    selectable: false
    implicitHeight: content.height + Math.round(22 * scale100)

    component Counter: Item {
        id: counter

        required property cellLabel count
        /// One of Role.State.
        required property int role

        readonly property bool zero: count.text === "0"

        implicitWidth: shape.width + gap + number.implicitWidth
        implicitHeight: number.height
        readonly property real gap: Theme.stacked ? 10 : 6

        StateMark {
            id: shape

            mark: Theme.stateMark(counter.role)
            color: counter.zero ? Theme.faint : Theme.loneMarkInk(counter.role)
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
            // x and not anchors: an item whose anchor changes from one side to the other loses its width.
            x: row.stacked !== Theme.mirrored ? 0 : parent.width - width
            y: row.stacked ? name.height : name.baselineOffset - baselineOffset
            Accessible.ignored: true
        }
        Grid {
            id: counters

            readonly property real column: Math.round((Window.width < 375 ? 56 : 64) * row.scale100)
            readonly property real widest: Math.max(good.implicitWidth, off.implicitWidth, alert.implicitWidth,
                                                    error.implicitWidth) + 12 * row.scale100
            /// Columns shrink by up to a fifth before they wrap.
            readonly property real least: Math.max(widest, 0.8 * column)

            // While updating, the counts are transparent and not hidden, so that the row keeps its height.
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
                role: Role.State.Good
                width: counters.drawn
            }
            Counter {
                id: off

                count: row.cell.offCountLabel
                role: Role.State.Off
                width: counters.drawn
            }
            Counter {
                id: alert

                count: row.cell.alertCountLabel
                role: Role.State.Alert
                width: counters.drawn
            }
            Counter {
                id: error

                count: row.cell.errorCountLabel
                role: Role.State.Error
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
