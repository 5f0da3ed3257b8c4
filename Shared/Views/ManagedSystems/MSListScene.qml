// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The managed systems of a console.
FeedListScene {
    id: scene

    readonly property MSListViewController systems: controller as MSListViewController

    delegate: StateRow {
        required property msListCell cell

        name: cell.nameLabel
        nameStart: cell.nameLeftConstraint
        badge: cell.statusImage.hidden ? "" : cell.statusImage.imageName
        state: cell.statusLabel
        swipeButtons: cell.rightButtons
        accessibleText: cell.accessibleText
    }
    onSwipeButtonTapped: (inResults, section, row, index) => systems.swipeTableCell(inResults, row, index)

    ActionSheet {
        outlet: scene.systems.actionSheet
    }
}
