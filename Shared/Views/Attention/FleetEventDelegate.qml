// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A row of the events of all consoles: the title over its time and the console's own seconds, or over what a search
/// found; at the end the console over the event's status. With large text what stands at the end moves below.
TableCell {
    id: row

    required property fleetEventCell cell

    readonly property bool stacked: Theme.stacked
    readonly property real room: Math.max(0, width - Theme.rowStart - Theme.rowEnd - 22)
    readonly property int gap: 12

    accessibleText: cell.accessibleText
    leadsOn: true
    implicitHeight: Math.max(Math.round(60 * Theme.textScale), words.height + Math.round(16 * Theme.textScale))

    // Measured separately: an implicit width depends on the width, which depends on these. One point is added because
    // the layout may round glyph widths up.
    TextMetrics {
        id: titleMeasure

        font: title.font
        text: row.cell.title.text
    }
    TextMetrics {
        id: consoleMeasure

        font: owner.font
        text: row.cell.console
    }
    TextMetrics {
        id: statusMeasure

        font: status.font
        text: row.cell.status
    }
    Item {
        id: words

        x: Theme.mirrored ? row.width - Theme.rowStart - width : Theme.rowStart
        y: Math.round((row.height - height) / 2)
        width: row.room
        height: row.stacked ? title.height + times.height + status.height + owner.height : title.height + times.height

        MatchLabel {
            id: title

            text: row.cell.title.text
            match: row.cell.title.match
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            width: row.stacked ? row.room : row.room - owner.width - row.gap
            x: Theme.mirrored ? parent.width - width : 0
            Accessible.ignored: true
        }
        MatchLabel {
            id: owner

            text: row.cell.console
            match: row.cell.title.match
            size: Theme.captionSize
            color: Theme.ink2
            horizontalAlignment: row.stacked ? Text.AlignLeft : Text.AlignRight
            // The title has precedence, up to a point.
            width: Math.min(Math.ceil(consoleMeasure.advanceWidth) + 1,
                            row.stacked ? row.room : Math.max(Math.round(row.room * 0.3),
                                                              row.room - Math.ceil(titleMeasure.advanceWidth) - 1 - row.gap))
            x: row.stacked !== Theme.mirrored ? 0 : parent.width - width
            y: row.stacked ? times.y + times.height + status.height : title.baselineOffset - baselineOffset
            Accessible.ignored: true
        }
        Row {
            id: times

            visible: row.cell.found.text === ""
            y: title.height
            x: Theme.mirrored ? parent.width - width : 0
            height: moment.height
            spacing: 3 * Theme.textScale

            Label {
                id: moment

                visible: text !== ""
                text: row.cell.moment
                size: Theme.captionSize
                color: Theme.ink2
                Accessible.ignored: true
            }
            Label {
                visible: row.cell.moment !== "" && row.cell.seconds !== ""
                text: "·"
                size: Theme.captionSize
                color: Theme.ink3
                Accessible.ignored: true
            }
            Label {
                text: row.cell.seconds
                size: Theme.captionSize
                color: Theme.ink3
                elide: Text.ElideRight
                width: Math.min(implicitWidth, row.room - moment.width - 12 - (row.stacked ? 0 : status.width + row.gap))
                Accessible.ignored: true
            }
        }
        MatchLabel {
            visible: !times.visible
            text: row.cell.found.text
            match: row.cell.found.match
            size: Theme.captionSize
            color: Theme.ink2
            width: row.stacked ? row.room : row.room - status.width - row.gap
            x: Theme.mirrored ? parent.width - width : 0
            y: times.y
            Accessible.ignored: true
        }
        Label {
            id: status

            text: row.cell.status
            size: Theme.captionSize
            color: Theme.ink2
            elide: Text.ElideRight
            width: Math.min(Math.ceil(statusMeasure.advanceWidth) + 1, row.stacked ? row.room : Math.round(row.room * 0.45))
            x: row.stacked !== Theme.mirrored ? 0 : parent.width - width
            // From right to left, the marks around the state come from another face, which would push the line down.
            y: row.stacked ? times.y + times.height : title.height + moment.baselineOffset - baselineOffset
            Accessible.ignored: true
        }
    }
    Chevron {
        chosen: row.chosen
        x: Theme.mirrored ? Theme.rowEnd : row.width - Theme.rowEnd - width
        anchors.verticalCenter: parent.verticalCenter
    }
}
