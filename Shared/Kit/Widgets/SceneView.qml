// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// Draws any controller, together with the sheet that it presents and the intro that covers it.
FocusScope {
    id: view

    property alias controller: host.controller
    property alias reportsAppearance: host.reportsAppearance
    readonly property alias scene: host.scene
    /// The item that holds the scene; a sheet moves it back while the sheet is up.
    readonly property alias body: host

    SceneHost {
        id: host

        anchors.fill: parent
        focus: true
    }
    readonly property SemiModalPresentation presentation: controller !== null ? controller.semiModal : null
    property bool hasSheet: false

    function makeSheet() {
        // The sheet is made once and kept: it still slides out after the presentation has ended.
        if (presentation !== null && !hasSheet) {
            hasSheet = true;
            // The URL is used because naming the type would make every screen wait until the type is compiled.
            Qt.createComponent("SemiModalSheet.qml").createObject(view, {"view": view});
        }
    }

    readonly property PagedIntro intro: controller !== null ? controller.intro : null
    property bool hasIntro: false

    function makeIntro() {
        if (intro !== null && !hasIntro) {
            hasIntro = true;
            // The URL is used because most starts show no intro and need not load the type.
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
