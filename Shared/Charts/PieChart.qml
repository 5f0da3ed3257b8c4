// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Charts

/// A pie chart as scenes use it: `outlet` is the controller's PieChartView; the colours come from the theme.
PieChartItem {
    mirrored: LayoutMirroring.enabled

    Accessible.role: Accessible.Chart
    Accessible.name: outlet ? outlet.accessibleText : ""
    Accessible.description: outlet ? outlet.selectedText : ""
    Accessible.focusable: true
    Accessible.ignored: !outlet || outlet.accessibleText === ""
}
