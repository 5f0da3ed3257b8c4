// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Import and export of consoles, and what a sheet looks like. A file may be dropped here.
PageScaffold {
    id: scene

    readonly property FleetSheetViewController sheet: controller as FleetSheetViewController

    Keys.onUpPressed: moveKeyboard(false)
    Keys.onDownPressed: moveKeyboard(true)

    function moveKeyboard(forward: bool) {
        const next = Window.activeFocusItem?.nextItemInFocusChain(forward) ?? null;
        if (next !== null) {
            next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
        }
    }

    bar: NavigationBar {
        controller: scene.controller
    }
    scrollView: page

    ScrollPage {
        id: page

        GroupCard {
            width: parent.width

            MenuRow {
                objectName: "importRow"
                iconName: "import"
                text: qsTr("Import Consoles from a Sheet")
                focus: true
                onClicked: scene.sheet.importSheet()
            }
            MenuRow {
                objectName: "exportRow"
                iconName: "share"
                text: scene.sheet.exportLabel.text
                enabled: scene.sheet.exportLabel.enabled
                onClicked: scene.sheet.exportSheet()
            }
        }
        FleetNote {
            text: qsTr("A sheet is a CSV file with a first line, for example:")
            bottomPadding: 8 - drop
        }
        GroupCard {
            width: parent.width

            Item {
                width: parent.width
                implicitHeight: Math.max(Math.round(60 * Theme.textScale), example.height + 16)

                // A file's lines run from left to right in every language.
                Label {
                    id: example

                    text: "name,address,user\nHarbour A,corvel-a.harbour.example,oversight\nMillpond,203.0.113.17,monitor"
                    size: Theme.stateSize
                    line: 22
                    x: Theme.rowStart
                    width: parent.width - Theme.rowStart - Theme.rowEnd
                    anchors.verticalCenter: parent.verticalCenter
                    horizontalAlignment: Text.AlignLeft
                    LayoutMirroring.enabled: false
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
        }
        FleetNote {
            text: qsTr("Passwords are asked once a user. They are never read from a sheet nor written to one.")
            bottomPadding: demo.visible ? 24 - drop : 0
        }
        GroupCard {
            id: demo

            visible: !scene.sheet.demoRow.hidden
            width: parent.width

            MenuRow {
                objectName: "demoRow"
                iconName: "tab_consoles"
                text: qsTr("Look at the Demo")
                onClicked: scene.sheet.lookAtDemo()
            }
        }
        FleetNote {
            visible: demo.visible
            text: qsTr("A console that is part of Lodestar. It needs no network.")
        }
    }
    FleetDropArea {
        onFileDropped: (url) => scene.sheet.importFile(url)
    }
}
