// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// The choices of a sheet, one a row.
Column {
    id: rows

    required property MenuOutlet outlet
    required property bool hasIcons

    width: parent?.width ?? 0

    Repeater {
        model: rows.outlet.choices

        MenuRow {
            required property int index
            required property menuChoice modelData

            visible: index !== rows.outlet.cancelIndex
            rowHeight: 56
            chevron: false
            text: modelData.title
            detail: modelData.detail
            iconName: modelData.imageName
            inset: rows.hasIcons
            iconColor: modelData.destructive ? Theme.systemRedInk : Theme.accentInk
            ink: modelData.destructive ? Theme.systemRedInk : Theme.ink
            Accessible.role: Accessible.MenuItem
            separator: index > 0 || rows.outlet.title !== ""
            onClicked: rows.outlet.choose(index)
        }
    }
}
