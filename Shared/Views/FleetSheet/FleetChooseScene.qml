// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// What is in a fleet sheet, and the passwords of its users.
PageScaffold {
    id: scene

    readonly property FleetChooseViewController sheet: controller as FleetChooseViewController

    bar: NavigationBar {
        controller: scene.controller
    }
    scrollView: page

    ScrollPage {
        id: page

        GroupCard {
            width: parent.width

            MenuRow {
                objectName: "fileRow"
                iconName: "file"
                text: scene.sheet.fileLabel.text
                detail: scene.sheet.rowsLabel.text
                focus: true
                onClicked: scene.sheet.chooseAnother()
            }
        }
        FleetNote {
            visible: text !== ""
            text: scene.sheet.foundLabel.text
            alert: scene.sheet.foundLabel.state === Role.State.Alert
        }
        FleetNote {
            visible: !scene.sheet.notReadLabel.hidden
            text: scene.sheet.notReadLabel.text
            alert: true
        }
        SectionHeader {
            visible: !scene.sheet.sheetCard.hidden
            width: parent.width
            text: qsTr("In this sheet")
        }
        GroupCard {
            visible: !scene.sheet.sheetCard.hidden
            width: parent.width

            MenuRow {
                text: qsTr("New")
                detail: scene.sheet.newLabel.text
                chevron: false
                pressable: false
            }
            MenuRow {
                text: qsTr("Registered already, left alone")
                detail: scene.sheet.registeredLabel.text
                chevron: false
                pressable: false
            }
            MenuRow {
                id: unusableRow

                readonly property bool any: scene.sheet.unusableLabel.state === Role.State.Alert

                objectName: "unusableRow"
                text: qsTr("Cannot be used")
                detail: any ? "" : scene.sheet.unusableLabel.text
                chevron: any
                pressable: any
                Accessible.name: Sentence.joined([text, scene.sheet.unusableLabel.text])
                onClicked: scene.sheet.openUnusable()

                StateWord {
                    visible: unusableRow.any
                    word: unusableRow.any ? scene.sheet.unusableLabel.text : ""
                    role: Role.State.Alert
                    markLeads: true
                    Accessible.ignored: true
                }
            }
        }
        SectionHeader {
            visible: card.visible
            width: parent.width
            text: qsTr("Passwords, one a user")
        }
        FleetPasswordCard {
            id: card

            visible: !scene.sheet.verifyLabel.hidden
            passwords: scene.sheet.passwords
            onReturned: {
                if (verifyButton.enabled) {
                    scene.sheet.verify();
                }
            }
        }
        FleetNote {
            visible: card.visible
            text: qsTr("Passwords are never read from a sheet nor written to one.")
        }
        Item {
            width: 1
            height: 24
        }
        FilledButton {
            id: verifyButton

            objectName: "verifyButton"
            visible: card.visible
            text: scene.sheet.verifyLabel.text
            enabled: scene.sheet.verifyLabel.enabled
            width: parent.width
            onClicked: scene.sheet.verify()
        }
        FleetNote {
            visible: card.visible
            text: qsTr("Nothing is added before all of them were tried.")
            topPadding: 10 + drop
            horizontalAlignment: Text.AlignHCenter
        }
    }
    FleetDropArea {
        onFileDropped: (url) => scene.sheet.importFile(url)
    }
}
