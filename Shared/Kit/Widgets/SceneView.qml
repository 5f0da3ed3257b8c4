// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// Draws any controller, the sheet that it puts up and the intro that is laid over it.
FocusScope {
    id: view

    property alias controller: host.controller
    property alias reportsAppearance: host.reportsAppearance
    readonly property alias scene: host.scene
    /// What the scene stands in, for the sheet that is over it.
    readonly property alias body: host

    SceneHost {
        id: host

        anchors.fill: parent
        focus: true
    }
    readonly property SemiModalPresentation presentation: controller !== null ? controller.semiModal : null
    property bool hasSheet: false

    function makeSheet() {
        // Once made it stays: it slides out after the presentation has gone.
        if (presentation !== null && !hasSheet) {
            hasSheet = true;
            // By address: naming the type would have every screen wait for it to be compiled.
            Qt.createComponent("SemiModalSheet.qml").createObject(view, {"view": view});
        }
    }

    readonly property PagedIntro intro: controller !== null ? controller.intro : null
    property bool hasIntro: false

    function makeIntro() {
        if (intro !== null && !hasIntro) {
            hasIntro = true;
            // By address: most starts show none, and need not load it.
            Qt.createComponent("PagedIntroView.qml").createObject(view, {"over": view});
        }
    }

    onPresentationChanged: makeSheet()
    onIntroChanged: makeIntro()
    Component.onCompleted: {
        makeSheet();
        makeIntro();
    }
}
