// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Charts

/// A chart that can be read, as scenes use it. `readText` is what a screen reader says for the entry that is read.
ReadableChartItem {
    property string readText

    Accessible.role: Accessible.Chart
    Accessible.name: outlet ? outlet.accessibleText : ""
    Accessible.description: readText
    Accessible.focusable: true
    Accessible.ignored: !outlet || outlet.accessibleText === ""
}
