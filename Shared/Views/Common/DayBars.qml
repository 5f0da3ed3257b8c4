// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Charts
import Lodestar.Kit
import Lodestar.Views

/// Bars of the last days. A screen reader finds each day; where a day leads on, a tap chooses it, and so do the arrow
/// keys with Return.
AccessibleScope {
    id: view

    required property DayBarsOutlet bars
    /// Colours in place of the chart's own.
    property var colors: []
    property bool leadsOn: false
    property int current: days - 1
    readonly property int days: bars.days.length
    /// Points before the first day's bars, for the labels.
    readonly property real start: 26 * Theme.textScale

    implicitHeight: 118 + Math.round(40 * (Theme.textScale - 1))
    activeFocusOnTab: leadsOn
    Accessible.role: Accessible.Chart
    Accessible.name: bars.chart.accessibleText

    // Days run to the right in every language.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    function step(by: int) {
        current = Math.max(0, Math.min(days - 1, current + by));
        (columns.itemAt(current) as Item).forceActiveFocus(Qt.TabFocusReason);
    }

    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onReturnPressed: bars.choose(current)
    Keys.onEnterPressed: bars.choose(current)
    Keys.onSpacePressed: bars.choose(current)

    PlotChartItem {
        anchors.fill: parent
        outlet: view.bars.chart
        enabled: view.leadsOn
        activeFocusOnTab: false
        seriesColors: view.colors
        cardColor: Theme.card
        textColor: Theme.ink2
        gridColor: Theme.chartGrid
        axisColor: Theme.faint
        fontFamily: Theme.family
        textScale: Theme.textScale
        reducedMotion: Theme.reducedMotion
        Accessible.ignored: true
    }
    Repeater {
        id: columns

        model: view.bars.days

        AccessibleItem {
            required property int index
            required property string modelData

            x: view.start + index * width
            width: (view.width - view.start) / view.days
            height: view.height
            focus: index === view.current
            focusable: view.leadsOn
            pressAction: view.leadsOn
            Accessible.role: Accessible.ListItem
            Accessible.name: modelData
            onAccessiblePressed: view.bars.choose(index)

            FocusRing {
                anchors.fill: parent
                radius: 4
                shown: parent.visualFocus
            }
        }
    }
}
