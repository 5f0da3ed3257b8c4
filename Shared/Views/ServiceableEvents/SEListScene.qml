// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Views

/// The serviceable events of a console.
FeedListScene {
    delegate: StateRow {
        required property seListCell cell

        name: cell.titleLabel
        caption: cell.timeLabel.text
        chevron: true
        accessibleText: cell.accessibleText
    }
}
