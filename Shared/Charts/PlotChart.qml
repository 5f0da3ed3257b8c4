// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Charts

/// A chart with axes as scenes use it: `outlet` is the controller's view, the colours are the surroundings'.
PlotChartItem {
    id: chart

    property color focusColor: "#0072AD"

    activeFocusOnTab: true
    mirrored: LayoutMirroring.enabled

    Accessible.role: Accessible.Chart
    Accessible.name: chart.outlet ? chart.outlet.accessibleText : ""
    Accessible.description: chart.outlet ? chart.outlet.selectedText : ""
    Accessible.focusable: true
    Accessible.ignored: !chart.outlet || chart.outlet.accessibleText === ""

    Rectangle {
        anchors.fill: parent
        visible: chart.visualFocus
        color: "transparent"
        border.color: chart.focusColor
        border.width: 2
        radius: 12
    }
}
