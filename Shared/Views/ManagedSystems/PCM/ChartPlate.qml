// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// What a chart tells at the entry that is read: its time and the values of the series, in a line, or one below the
/// other where a line has no room.
Rectangle {
    id: plate

    required property string time
    required property var values
    /// One a value.
    required property var colors
    /// Points that a line may take.
    required property real room

    readonly property real lineWidth: measure.advanceWidth + values.length * 28 + 20
    readonly property bool stacked: lineWidth > room

    width: content.width + 20
    height: Math.max(26, content.height + 10)
    radius: Theme.plateRadius
    color: Theme.raised
    border.color: Theme.hairline
    Accessible.ignored: true

    TextMetrics {
        id: measure

        font.family: Theme.family
        font.pixelSize: Math.round(Theme.noteSize * Theme.textScale)
        text: plate.time + plate.values.join("")
    }
    Grid {
        id: content

        anchors.centerIn: parent
        columns: plate.stacked ? 1 : plate.values.length + 1
        columnSpacing: 10

        Label {
            text: plate.time
            size: Theme.noteSize
            color: Theme.ink2
            Accessible.ignored: true
        }
        Repeater {
            model: plate.values.length

            Row {
                id: value

                required property int index

                spacing: 4

                Rectangle {
                    width: 10
                    height: 2
                    radius: 1
                    color: plate.colors[value.index] ?? "transparent"
                    anchors.verticalCenter: parent.verticalCenter
                }
                Label {
                    text: plate.values[value.index] ?? ""
                    size: Theme.noteSize
                    Accessible.ignored: true
                }
            }
        }
    }
}
