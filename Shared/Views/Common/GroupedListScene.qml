// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Views

/// A console's logical partitions or virtual I/O servers, grouped by managed system.
FeedListScene {
    delegate: StateRow {
        required property partitionCell cell

        name: cell.nameLabel
        caption: cell.typeLabel.text
        state: cell.stateLabel
        note: cell.referenceCodeLabel.text
        chevron: true
        leadingSwipeButtons: cell.leftButtons
        leadingSwipeExpansion: cell.leftExpansion
        accessibleText: cell.accessibleText
    }
}
