// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Charts

/// A chart with axes as scenes use it: `outlet` is the controller's view; the colours come from the theme.
PlotChartItem {
    mirrored: LayoutMirroring.enabled

    Accessible.role: Accessible.Chart
    Accessible.name: outlet ? outlet.accessibleText : ""
    Accessible.description: outlet ? outlet.selectedText : ""
    Accessible.focusable: true
    Accessible.ignored: !outlet || outlet.accessibleText === ""
}
