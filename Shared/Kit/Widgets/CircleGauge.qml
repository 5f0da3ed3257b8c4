// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Shapes
import Lodestar.Kit

/// A ring on a faint track, drawn from the top as far round as `current` is of `total`. The ring draws itself once,
/// when it is made.
Item {
    id: gauge

    required property real total
    required property real current
    property bool clockwise: true
    property color strokeColor: Theme.accent
    property color trackColor: Theme.hairline

    readonly property real strokeWidth: 8
    readonly property real share: total > 0 ? Math.max(0, Math.min(1, current / total)) : 0
    property real drawn: 0

    implicitWidth: 110
    implicitHeight: 110
    Component.onCompleted: drawing.start()

    NumberAnimation {
        id: drawing

        target: gauge
        property: "drawn"
        from: Theme.reducedMotion ? gauge.share : 0
        to: gauge.share
        duration: Theme.reducedMotion ? 0 : 1000
        easing.type: Easing.OutCubic
    }
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        radius: width / 2
        border.width: gauge.strokeWidth
        border.color: gauge.trackColor
    }
    Shape {
        anchors.fill: parent

        ShapePath {
            strokeWidth: gauge.strokeWidth
            strokeColor: gauge.strokeColor
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap

            PathAngleArc {
                centerX: gauge.width / 2
                centerY: gauge.height / 2
                radiusX: (gauge.width - gauge.strokeWidth) / 2
                radiusY: (gauge.height - gauge.strokeWidth) / 2
                startAngle: -90
                sweepAngle: (gauge.clockwise ? 360 : -360) * gauge.drawn
            }
        }
    }
}
