// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// Draws any controller and the sheet that it puts up.
FocusScope {
    id: view

    property alias controller: host.controller
    property alias reportsAppearance: host.reportsAppearance
    readonly property alias scene: host.scene

    SceneHost {
        id: host

        anchors.fill: parent
        focus: true
    }
    Component {
        id: sheetComponent

        SemiModalSheet {
            presentation: view.presentation
            underlay: host
        }
    }

    readonly property SemiModalPresentation presentation: controller !== null ? controller.semiModal : null
    property bool hasSheet: false

    function makeSheet() {
        // Once made it stays: it slides out after the presentation has gone.
        if (presentation !== null && !hasSheet) {
            hasSheet = true;
            sheetComponent.createObject(view);
        }
    }

    onPresentationChanged: makeSheet()
    Component.onCompleted: makeSheet()
}
