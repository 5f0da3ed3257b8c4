// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The alert of a window, for what no screen tells by itself. Takes no room and no touch while none is up.
Item {
    id: view

    required property MenuOutlet outlet

    Alert {
        outlet: view.outlet
    }
}
