// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Goes deeper. Its ink ends where its item ends: the drawing's own margin hangs out on both sides.
Item {
    implicitWidth: 10
    implicitHeight: 24

    Icon {
        name: "chevron"
        color: Theme.faint
        directional: true
        x: Theme.mirrored ? -8 : -6
    }
}
