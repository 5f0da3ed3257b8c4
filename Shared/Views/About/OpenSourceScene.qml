// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Shows the notices one below the other.
ReadingPage {
    id: scene

    readonly property OpenSourceViewController screen: controller as OpenSourceViewController

    model: screen.licenseText.pieces
    delegate: Item {
        required property string modelData
        required property int index

        width: ListView.view?.width ?? 0
        height: Math.ceil(body.height)
        Accessible.role: Accessible.StaticText
        Accessible.name: modelData

        SelectionMark {
            textStart: scene.textStart
            textWidth: scene.textWidth
            visible: parent.index >= scene.firstSelected && parent.index <= scene.lastSelected
        }
        Label {
            id: body

            text: parent.modelData
            size: Theme.stateSize
            line: 22
            wrapMode: Text.Wrap
            LayoutMirroring.enabled: false
            x: scene.textStart
            width: scene.textWidth
            Accessible.ignored: true
        }
    }
}
