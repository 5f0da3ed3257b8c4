// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A console's row: name, version, address, and three values or their spinners. On phones the values stand in columns
/// below the address; on wider windows at the row's end, under captions. Large text puts everything on lines of its
/// own.
TableCell {
    id: row

    required property corvelListCell cell
    required property CorvelListViewController corvels

    property readingMark none
    // While the scene is torn down, this binding runs once more and finds no controller.
    readonly property readingMark mark: corvels !== null ? corvels.markOf(cell, corvels.marksTurn) : none
    readonly property bool captioned: !Theme.stacked && Theme.widthClass(listWidth) !== Theme.compactWidth
    /// One value per line: with large text, and where the three do not fit beside each other.
    readonly property bool stacked: Theme.stacked || (!captioned && metrics.neededWidth > width - Theme.rowStart - Theme.rowEnd)
    readonly property bool narrow: listWidth < 375
    readonly property real scale100: Theme.textScale
    /// Points kept free at the end for the chevron, even without one, so that columns of all rows are aligned.
    readonly property real trailing: Theme.rowEnd + 24

    accessibleText: Sentence.joined([cell.accessibleText, mark.spoken])
    accessibleDetail: Sentence.joined([cell.addressLabel.text, cell.versionLabel.text])
    selectable: cell.highlights
    leadsOn: cell.highlights
    swipeButtons: cell.rightButtons
    leadingSwipeButtons: cell.leftButtons
    offersMenu: true
    implicitHeight: stacked ? Math.ceil(content.height + 22 * scale100) : 0

    component Metric: Item {
        id: metric

        required property string caption
        required property cellLabel value
        required property cellIndicator indicator
        property bool captionHidden: false

        readonly property bool stateful: value.state !== Role.State.None
        readonly property real valueX: captionHidden || row.captioned ? 0 : captionLabel.implicitWidth + 6 * row.scale100
        readonly property real valueY: row.captioned ? Math.round(22 * row.scale100) : Math.round(row.scale100)
        readonly property real valueWidth: indicator.animating ? spinner.width
                                                               : stateful ? word.implicitWidth : number.implicitWidth

        implicitWidth: Math.max(captionHidden ? 0 : captionLabel.implicitWidth, valueX + valueWidth)
        implicitHeight: Math.round((row.captioned ? 42 : 22) * row.scale100)

        Label {
            id: captionLabel

            text: metric.caption
            size: Theme.captionSize
            color: Theme.ink2
            visible: !metric.captionHidden
            anchors.left: parent.left
            y: row.captioned ? 0 : Math.round(2 * row.scale100)
            Accessible.ignored: true
        }
        Spinner {
            id: spinner

            size: Math.round(16 * Theme.badgeScale)
            running: metric.indicator.animating
            anchors.left: parent.left
            anchors.leftMargin: metric.valueX
            y: metric.valueY + (number.lineHeight - height) / 2
            Accessible.ignored: true
        }
        StateWord {
            id: word

            word: metric.stateful ? metric.value.text : ""
            role: metric.value.state
            markLeads: true
            visible: metric.stateful && !metric.value.hidden
            anchors.left: parent.left
            anchors.leftMargin: metric.valueX
            y: metric.valueY
            width: implicitWidth
            Accessible.ignored: true
        }
        Label {
            id: number

            text: metric.stateful ? "" : metric.value.text
            size: Theme.stateSize
            visible: !metric.stateful && !metric.value.hidden
            anchors.left: parent.left
            anchors.leftMargin: metric.valueX
            y: metric.valueY
            Accessible.ignored: true
        }
    }

    Item {
        id: content

        readonly property real identityHeight: name.height + address.height + (version.atEnd ? 0 : version.height)
                                               + (row.stacked && age.visible ? age.height : 0)
        readonly property real metricsWidth: row.captioned ? 316 : width

        anchors {
            left: parent.left
            leftMargin: Theme.rowStart
            right: parent.right
            rightMargin: row.stacked ? row.trailing : Theme.rowEnd
        }
        y: Math.round(row.stacked ? (row.height - height) / 2 : row.captioned ? (row.height - height) / 2
                                                                              : 11 * row.scale100)
        height: row.captioned ? identityHeight : identityHeight + Math.round(7 * row.scale100) + metrics.height

        // Name and version are measured separately: the labels' implicit widths depend on their widths, which depend on
        // these. One point is added because the layout may round glyph widths up.
        TextMetrics {
            id: nameMeasure

            font: name.font
            text: row.cell.nameLabel.text
        }
        TextMetrics {
            id: versionMeasure

            font: version.font
            text: row.cell.versionLabel.text
        }
        Label {
            id: name

            text: row.cell.nameLabel.text
            elide: row.stacked ? Text.ElideNone : Text.ElideMiddle
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            anchors.left: parent.left
            width: row.stacked ? content.identityWidth
                               : Math.min(Math.ceil(nameMeasure.advanceWidth) + 1, content.identityWidth)
            Accessible.ignored: true
        }
        readonly property real identityWidth: row.captioned ? width - 24 - metricsWidth - 16 : width - (row.stacked ? 0 : 24)

        Label {
            id: version

            readonly property bool atEnd: !row.captioned && !row.stacked
            /// The name has precedence: a version that would make the name elide moves down to the address.
            readonly property bool besideName: atEnd && nameMeasure.advanceWidth + wanted + 14 < content.identityWidth
            readonly property real wanted: Math.ceil(versionMeasure.advanceWidth) + 1

            text: row.cell.versionLabel.text
            size: Theme.captionSize
            color: Theme.ink2
            elide: Text.ElideMiddle
            width: Math.min(wanted, atEnd && !besideName ? Math.round(content.identityWidth / 2)
                                                                : content.identityWidth)
            // x and not anchors: an item whose anchor changes from one side to the other loses its width.
            x: atEnd === Theme.mirrored ? (atEnd ? 24 : 0) : parent.width - width - (atEnd ? 24 : 0)
            y: besideName ? name.baselineOffset - baselineOffset : atEnd ? address.y : address.y + address.height
            Accessible.ignored: true
        }
        Label {
            id: address

            text: row.cell.addressLabel.text
            size: Theme.captionSize
            color: Theme.ink2
            elide: Text.ElideMiddle
            anchors.left: parent.left
            width: Math.min(implicitWidth, content.identityWidth - age.beside
                            - (version.atEnd && !version.besideName ? version.width + 12 : 0))
            y: name.height
            Privacy.covered: true
            Accessible.ignored: true
        }
        ReadingLabel {
            id: age

            /// Points that the mark takes of the address's line.
            readonly property real beside: visible && version.atEnd ? width + 12 : 0
            readonly property real below: address.y + address.height
            readonly property real end: 24 + (version.besideName ? 0 : version.width + 12)

            function place(start: real): real {
                return Theme.mirrored ? parent.width - start - width : start;
            }

            mark: row.mark
            atEnd: version.atEnd
            room: Math.round(content.identityWidth * (version.besideName ? 0.6 : 0.4))
            // x and not anchors: see the version.
            x: place(version.atEnd ? parent.width - end - width : row.stacked ? 0 : version.width + 12)
            y: version.atEnd ? address.y : below + (row.stacked ? version.height : 0)
        }

        Item {
            id: metrics

            readonly property real firstColumn: row.captioned ? 124 : row.narrow ? 92 : 104
            readonly property real secondColumn: row.captioned ? 104 : row.narrow ? 104 : 112
            readonly property real lineStep: Math.round(28 * row.scale100)
            /// A value that is wider than its column moves the next column on.
            readonly property real secondStart: Math.max(firstColumn, status.implicitWidth + 12)
            readonly property real thirdStart: secondStart + Math.max(secondColumn, attention.implicitWidth + 12)
            readonly property real neededWidth: thirdStart + events.implicitWidth

            x: !row.captioned ? 0 : Theme.mirrored ? 24 : parent.width - width - 24
            width: content.metricsWidth
            height: row.stacked ? 2 * lineStep + events.height : status.height
            y: row.captioned ? Math.round((content.height - height) / 2)
                             : content.identityHeight + Math.round(7 * row.scale100)

            Metric {
                id: status

                caption: qsTr("Status")
                captionHidden: !row.captioned
                value: row.cell.statusLabel
                indicator: row.cell.statusActivityIndicator
                anchors.left: parent.left
                width: implicitWidth
                height: implicitHeight
            }
            Metric {
                id: attention

                caption: qsTr("Attention")
                value: row.cell.attentionLabel
                indicator: row.cell.attentionActivityIndicator
                anchors.left: parent.left
                anchors.leftMargin: row.stacked ? 0 : metrics.secondStart
                y: row.stacked ? metrics.lineStep : 0
                width: implicitWidth
                height: implicitHeight
            }
            Metric {
                id: events

                caption: qsTr("Events")
                value: row.cell.eventsLabel
                indicator: row.cell.eventsActivityIndicator
                anchors.left: parent.left
                anchors.leftMargin: row.stacked ? 0 : metrics.thirdStart
                y: row.stacked ? 2 * metrics.lineStep : 0
                width: implicitWidth
                height: implicitHeight
            }
        }
    }

    Chevron {
        visible: !row.cell.selectionArrow.hidden
        chosen: row.chosen
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd
        anchors.verticalCenter: parent.verticalCenter
    }
}
