// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Application
import Lodestar.Kit

/// The settings: two cards of fixed rows.
PageScaffold {
    id: scene

    readonly property SettingsViewController settings: controller as SettingsViewController
    readonly property SheetKeyboard keyboard: SheetKeyboard {
        host: scene.settings
        inside: scene
    }

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
            separatorLeft: scene.settings.separatorLeft
            separatorRight: scene.settings.separatorRight

            MenuRow {
                id: requireRow

                text: qsTr("Require Passcode")
                iconName: "lock"
                chevron: false
                pressable: false
                Accessible.ignored: true // the switch has the row's name

                Switch {
                    objectName: "passwordSwitch"
                    text: requireRow.text
                    outlet: scene.settings.passwordSwitch
                    focus: true
                    onToggled: scene.settings.togglePassword()
                }
            }
            MenuRow {
                objectName: "passwordCell"
                text: qsTr("Change Passcode")
                iconName: "key"
                enabled: scene.settings.passwordCell.enabled
                greyed: !scene.settings.passwordCellLabel.enabled
                chevron: !scene.settings.passwordCellArrow.hidden
                onClicked: scene.settings.selectRow(0, 1)
            }
        }
        Label {
            objectName: "keychainNote"
            visible: !scene.settings.keychainNote.hidden
            text: scene.settings.keychainNote.text
            size: Theme.captionSize
            color: Theme.ink2
            x: Theme.rowStart
            width: parent.width - Theme.rowStart - Theme.rowEnd
            topPadding: 8
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Item {
            width: parent.width
            height: Theme.groupGap
        }
        GroupCard {
            width: parent.width
            separatorLeft: scene.settings.separatorLeft
            separatorRight: scene.settings.separatorRight

            MenuRow {
                text: qsTr("Intro Tour")
                iconName: "tour"
                onClicked: scene.settings.selectRow(1, 0)
            }
            MenuRow {
                text: qsTr("Version")
                detail: scene.settings.version
                iconName: "release_notes"
                onClicked: scene.settings.selectRow(1, 1)
            }
            MenuRow {
                text: qsTr("Open Source Licenses")
                iconName: "notices"
                onClicked: scene.settings.selectRow(1, 2)
            }
            MenuRow {
                text: qsTr("Ornis License")
                iconName: "license"
                onClicked: scene.settings.selectRow(1, 3)
            }
        }
    }
    Alert {
        outlet: scene.settings.alert
    }
}
