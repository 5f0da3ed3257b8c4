// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The choices of a GridMenu side by side, each with a picture: see ChoiceSheet. With large text the choices stand
/// in rows, where their titles have room.
ChoiceSheet {
    id: menu

    readonly property int count: outlet.choices.length - (outlet.cancelIndex >= 0 ? 1 : 0)

    sideways: !Theme.stacked
    choices: [
        ChoiceGrid {
            outlet: menu.outlet
            // Three in a row at most; four are two and two.
            columns: menu.count === 4 ? 2 : Math.max(1, Math.min(3, menu.count))
            visible: !Theme.stacked
        },
        ChoiceRows {
            outlet: menu.outlet
            hasIcons: menu.hasIcons
            visible: Theme.stacked
        }
    ]
}
