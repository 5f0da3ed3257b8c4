// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The sheet that asks once more for passwords.
SheetContent {
    id: scene

    required property ViewController controller
    readonly property FleetAgainViewController again: controller as FleetAgainViewController

    title: again.title
    saveText: qsTr("Verify")
    firstField: card.first
    extraHeight: Math.max(0, page.contentHeight - statedHeight)
    onCancelled: again.cancel()
    onSaved: again.verify()

    ScrollPage {
        id: page

        topSpace: 12

        FleetPasswordCard {
            id: card

            passwords: scene.again.passwords
            behind: Theme.raised
            surface: Theme.raised
            onReturned: scene.again.verify()
        }
        FleetNote {
            text: qsTr("A field that stays empty keeps its password.")
        }
    }
}
