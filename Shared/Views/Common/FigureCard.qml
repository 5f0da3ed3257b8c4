// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// A card with three figures side by side, or with large text one below the other, and a rule between each two.
Rectangle {
    id: card

    default property alias figures: grid.data
    property real topPadding: 14
    property alias rowSpacing: grid.rowSpacing
    property alias columnSpacing: grid.columnSpacing
    /// Points by which a standing rule is shorter than the figures, at either end.
    property real ruleInset: 2
    property bool ruled: true

    readonly property bool stacked: Theme.stacked
    readonly property real column: stacked ? width : width / 3
    /// How wide a figure is to be.
    readonly property real figureWidth: column - columnSpacing

    width: parent?.width ?? 0
    implicitHeight: grid.height + 2 * topPadding - 2
    radius: Theme.cardRadius
    color: Theme.card
    border { width: Theme.outlineWidth; color: Theme.outline }

    Grid {
        id: grid

        y: card.topPadding
        columns: card.stacked ? 1 : 3
        leftPadding: columnSpacing / 2
        rightPadding: columnSpacing / 2
    }
    Repeater {
        model: card.ruled ? [1, 2] : []

        Hairline {
            /// Number of figures before this rule.
            required property int modelData
            readonly property real step: (grid.height + card.rowSpacing) / 3

            vertical: !card.stacked
            x: !card.stacked ? Math.round(modelData * card.column) : Theme.mirrored ? 15 : 10
            y: card.stacked ? Math.round(grid.y + modelData * step - card.rowSpacing / 2) : grid.y + card.ruleInset
            width: card.stacked ? card.width - 25 : thickness
            height: card.stacked ? thickness : grid.height - 2 * card.ruleInset
        }
    }
}
