// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A row of the connection screen. A stage is one line: mark, title, detail, time. A feed has its detail below. A fact
/// is a label over its value, a step a number before a sentence, and the verdict a large mark before both its texts.
Item {
    id: line

    required property connectionRow row
    required property int kind
    /// Of a step.
    required property int number
    /// Points that something else takes above the row's own content.
    property real above: 0

    readonly property bool verdict: kind === ConnectionCard.Verdict
    readonly property bool step: kind === ConnectionCard.Steps
    readonly property bool stage: kind === ConnectionCard.Stages
    readonly property bool fact: kind === ConnectionCard.Facts
    readonly property bool idle: row.mark === Role.State.Waiting && !verdict
    readonly property bool failed: row.failure !== ""
    readonly property real scale100: Theme.textScale
    /// Title, detail and time stand below each other.
    readonly property bool stacked: Theme.stacked
    readonly property bool beside: stage && !stacked

    readonly property real leadWidth: fact ? 0 : (verdict ? 24 : 12) * scale100
    readonly property real textStart: fact ? Theme.rowStart : Theme.rowStart + leadWidth + 12
    readonly property real least: verdict ? 0 : step ? 42 : stage ? 44 : kind === ConnectionCard.Feeds ? 50 : 60
    readonly property real padding: Math.round((verdict ? 16 : step || failed ? 11 : stage ? 4 : 6) * scale100)

    implicitHeight: above + Math.max(Math.round(least * scale100), texts.height + 2 * padding + (fact ? Math.round(4 * scale100) : verdict ? 2 : 0))
    Accessible.role: Accessible.StaticText
    Accessible.name: row.spoken

    function verdictIcon(mark: int): string {
        switch (mark) {
        case Role.State.Offline: return "at_offline";
        case Role.State.Incomplete: return "at_incomplete";
        default: return Theme.stateMark(mark) === "" ? "" : "state_" + Theme.stateMark(mark);
        }
    }

    Icon {
        visible: line.verdict
        name: line.verdict ? line.verdictIcon(line.row.mark) : ""
        // The small marks fill their grid more than the badges do.
        size: (name.startsWith("state_") ? 20 : 24) * line.scale100
        color: Theme.loneMarkInk(line.row.mark)
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart + (24 * line.scale100 - size) / 2
        y: texts.y + (title.lineHeight - size) / 2
    }
    StateMark {
        visible: !line.verdict && !line.step && !line.fact
        mark: Theme.stateMark(line.row.mark)
        color: Theme.loneMarkInk(line.row.mark)
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        y: texts.y + ((line.failed || line.stacked ? title.lineHeight : texts.height) - height) / 2
    }
    Label {
        visible: line.step
        text: line.number
        size: Theme.stateSize
        color: Theme.ink3
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        y: texts.y
        Accessible.ignored: true
    }
    Item {
        id: texts

        readonly property real besideWidth: Math.max(0, width - title.implicitWidth - time.width - 24)

        anchors.left: parent.left
        anchors.leftMargin: line.textStart
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd
        y: line.verdict ? line.padding : Math.round((line.height + line.above - height) / 2)
        height: line.failed ? plate.y + plate.height + Math.round(2 * line.scale100)
                            : line.beside ? title.height
                                          : Math.max(title.height, detail.visible ? detail.y + detail.height : 0,
                                                     line.stacked && time.visible ? time.y + time.height : 0)

        Label {
            id: title

            text: line.row.title
            size: line.verdict ? Theme.bodySize : line.fact ? Theme.captionSize : Theme.stateSize
            color: line.fact ? Theme.ink2 : line.idle ? Theme.ink3 : Theme.ink
            anchors.left: parent.left
            width: line.stage || line.stacked || !time.visible ? parent.width : parent.width - time.width - 12
            wrapMode: line.beside ? Text.NoWrap : Text.Wrap
            Accessible.ignored: true
        }
        Label {
            id: detail

            visible: text !== ""
            text: line.row.detail
            size: line.verdict ? Theme.stateSize : line.fact ? (line.row.small ? Theme.stateSize : Theme.bodySize)
                                                             : Theme.captionSize
            color: line.fact ? Theme.ink
                             : line.row.mark === Role.State.Incomplete && !line.verdict ? Theme.systemOrange : Theme.ink2
            // x and not anchors: the side changes with the text size.
            width: line.beside ? Math.min(Math.ceil(detailMeasure.advanceWidth) + 1, texts.besideWidth) : parent.width
            x: !line.beside ? 0 : Theme.mirrored ? time.width + 12 : parent.width - time.width - 12 - width
            y: line.beside ? title.baselineOffset - baselineOffset
                           : title.height + (line.verdict ? Math.round(4 * line.scale100) : 0)
            wrapMode: line.beside ? Text.NoWrap : line.fact ? Text.WrapAtWordBoundaryOrAnywhere : Text.Wrap
            shrinks: true
            fontSizeMode: line.beside ? Text.HorizontalFit : Text.FixedSize
            minimumPixelSize: 10
            elide: line.beside ? Text.ElideMiddle : Text.ElideNone
            Accessible.ignored: true
        }
        // Measured apart: a label's implicit width depends on its width. One point is added because the layout may round
        // glyph widths up.
        TextMetrics {
            id: detailMeasure

            font: detail.font
            text: line.row.detail
        }
        TextMetrics {
            id: failureMeasure

            font: failure.font
            text: line.row.failure
        }
        Label {
            id: time

            visible: line.row.trailing !== ""
            text: line.row.trailing
            size: Theme.stateSize
            color: line.idle ? Theme.ink3 : Theme.ink
            width: line.stacked ? implicitWidth : Math.max(implicitWidth, visible ? 56 : 0)
            horizontalAlignment: line.stacked ? Text.AlignLeft : Text.AlignRight
            x: line.stacked !== Theme.mirrored ? 0 : parent.width - width
            y: !line.stacked ? 0 : detail.visible ? detail.y + detail.height : title.height
            Accessible.ignored: true
        }
        Rectangle {
            id: plate

            visible: line.failed
            x: Theme.mirrored ? parent.width - width + 8 : -8
            y: (line.stacked && time.visible ? time.y + time.height : title.height) + Math.round(7 * line.scale100)
            width: failure.width + 16
            height: failure.height + Math.round(4 * line.scale100)
            radius: Theme.plateRadius
            color: Theme.plate

            Label {
                id: failure

                text: line.row.failure
                size: Theme.captionSize
                color: Theme.errorRed
                x: 8
                y: Math.round(2 * line.scale100)
                width: Math.min(Math.ceil(failureMeasure.advanceWidth) + 1, texts.width)
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
    }
}
