// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The settings of the watch. While it is off, the rows that depend on it are there to be read only.
PageScaffold {
    id: scene

    readonly property WatchViewController watch: controller as WatchViewController
    readonly property bool watching: watch.watchSwitch.on

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

    component Note: Label {
        size: Theme.captionSize
        color: Theme.ink2
        x: Theme.rowStart
        width: parent !== null ? parent.width - 2 * Theme.rowStart : 0
        topPadding: 8 + drop
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    component Gap: Item {
        width: parent !== null ? parent.width : 0
        height: Theme.groupGap
    }
    component SwitchRow: MenuRow {
        id: switchRow

        required property SwitchOutlet outlet

        chevron: false
        greyed: false
        pressable: false
        Accessible.ignored: true // the switch has the row's name

        Switch {
            text: switchRow.text
            outlet: switchRow.outlet
            opacity: 1 // the card shows that it is disabled
            onToggled: scene.watch.takeSwitches()
        }
    }
    component Card: GroupCard {
        property bool available: scene.watching

        width: parent !== null ? parent.width : 0
        enabled: available
        opacity: available ? 1 : 0.5
    }

    ScrollPage {
        id: page

        Card {
            available: true

            SwitchRow {
                objectName: "watchRow"
                text: qsTr("Watch While Lodestar Runs")
                outlet: scene.watch.watchSwitch
            }
        }
        Note {
            text: qsTr("Reads every console again by itself and tells you what changed. It stops when Lodestar is closed.")
        }
        SectionHeader {
            width: parent.width
            text: qsTr("Refresh")
        }
        Card {
            MenuRow {
                objectName: "everyRow"
                text: qsTr("Every")
                detail: scene.watch.everyLabel.text
                greyed: false
                onClicked: scene.watch.chooseInterval()
            }
        }
        SectionHeader {
            width: parent.width
            text: qsTr("Tell me")
        }
        Card {
            SwitchRow {
                text: qsTr("When Something Gets Worse")
                outlet: scene.watch.worseSwitch
            }
            SwitchRow {
                text: qsTr("When It Gets Better Again")
                outlet: scene.watch.betterSwitch
            }
            MenuRow {
                text: qsTr("New Events")
                detail: scene.watch.newEventsLabel.text
                greyed: false
                onClicked: scene.watch.chooseNewEvents()
            }
            MenuRow {
                text: qsTr("Consoles")
                detail: scene.watch.consolesLabel.text
                greyed: false
                onClicked: scene.watch.openConsoles()
            }
        }
        Note {
            objectName: "leftOutNote"
            visible: !scene.watch.leftOutNote.hidden
            text: scene.watch.leftOutNote.text
            color: Theme.orangeOnGround
        }
        Gap {}
        Card {
            SwitchRow {
                text: qsTr("Quiet Hours")
                outlet: scene.watch.quietSwitch
            }
            WatchTimeRow {
                objectName: "fromRow"
                text: qsTr("From")
                time: scene.watch.fromLabel.text
                enabled: scene.watch.quietSwitch.on
                opacity: enabled || !scene.watching ? 1 : 0.5
                onMoved: (quarters) => scene.watch.moveFrom(quarters)
            }
            WatchTimeRow {
                objectName: "untilRow"
                text: qsTr("Until")
                time: scene.watch.untilLabel.text
                enabled: scene.watch.quietSwitch.on
                opacity: enabled || !scene.watching ? 1 : 0.5
                onMoved: (quarters) => scene.watch.moveUntil(quarters)
            }
        }
        Note {
            text: scene.watch.quietNote.text
        }
        Gap {}
        Card {
            available: scene.watch.testRow.enabled

            MenuRow {
                objectName: "testRow"
                text: qsTr("Send a Test Message")
                ink: Theme.accentInk
                chevron: false
                greyed: false
                onClicked: scene.watch.sendTestMessage()
            }
        }
        Note {
            text: qsTr("At most one message a refresh. Names, addresses and texts stay out of it while a passcode is required.")
        }
        Note {
            objectName: "serviceNote"
            visible: !scene.watch.serviceNote.hidden
            text: scene.watch.serviceNote.text
            color: Theme.orangeOnGround
        }
    }
    ActionSheet {
        outlet: scene.watch.menu
    }
}
