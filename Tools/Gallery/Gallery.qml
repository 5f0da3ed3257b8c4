// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// The board of parts: every widget in every state.
Rectangle {
    id: board

    required property var controller

    color: Theme.ground

    component Box: Rectangle {
        id: box

        property string title
        default property alias content: inner.data

        width: parent.width
        implicitHeight: inner.y + inner.implicitHeight + 20
        height: implicitHeight
        radius: Theme.cardRadius
        color: Theme.card

        Label {
            text: box.title
            size: Theme.captionSize
            color: Theme.ink2
            x: Theme.mirrored ? parent.width - width - 20 : 20
            y: 16
        }
        Column {
            id: inner

            x: 20
            y: 46
            width: parent.width - 40
        }
    }
    component TypeLine: Item {
        id: line

        property string sample
        property string use
        property int size

        width: parent.width
        height: label.height + 6

        Label {
            id: label

            y: 6
            text: line.sample
            size: line.size
            anchors.left: parent.left
        }
        Label {
            text: line.use
            size: Theme.captionSize
            color: Theme.ink2
            anchors.right: parent.right
            anchors.baseline: label.baseline
        }
    }

    Row {
        x: 32
        y: 32
        spacing: 20

        Column {
            id: first

            width: (board.width - 104) / 3
            spacing: 20

            Box {
                title: "Type: one face, one weight"
                CountingLabel { value: board.controller.count.text; size: 34 }
                TypeLine { sample: "4 / 6"; use: "Figure 34 / 40"; size: 34 }
                TypeLine { sample: "My Corvels"; use: "Screen 28 / 36"; size: 28 }
                TypeLine { sample: "16.00"; use: "Value 24 / 32"; size: 24 }
                TypeLine { sample: "ledger-db-primary"; use: "Body 17 / 22"; size: 17 }
                TypeLine { sample: "Incorrect Credentials"; use: "Support 15 / 20"; size: 15 }
                TypeLine { sample: "corvel-a.harbour.example"; use: "Caption 13 / 18"; size: 13 }
                TypeLine { sample: "Corvels Online"; use: "Note 12 / 16"; size: 12 }
                TypeLine { sample: "Dashboard"; use: "Tab 11 / 14"; size: 11 }
            }
            Box {
                title: "Colour roles"

                Grid {
                    columns: 6
                    spacing: 8

                    Repeater {
                        model: ["ground", "card", "raised", "pressed", "hovered", "well", "hairline", "ink", "ink2", "ink3",
                                "titleInk", "faint", "accent", "accentInk", "match", "plate", "systemOrange", "systemRed",
                                "systemRedInk", "systemLightGrey", "successGreen", "failedRed", "errorRed", "track"]

                        Rectangle {
                            required property string modelData

                            width: 44
                            height: 44
                            radius: 8
                            color: Theme[modelData]
                            border.width: 0.5
                            border.color: Theme.faint
                        }
                    }
                }
            }
            Box {
                title: "Empty"

                NoContent {
                    width: parent.width
                    height: 280
                    picture: "no_data_systems"
                    text: "Managed systems could not be loaded. Refresh to try again."
                    actionText: "Add Corvel"
                }
            }
        }
        Column {
            width: first.width
            spacing: 20

            Box {
                title: "State words: word, colour and shape"

                Grid {
                    columns: 2
                    columnSpacing: 12
                    width: parent.width

                    Repeater {
                        model: [["operating", Role.State.Good], ["running", Role.State.Good], ["not activated", Role.State.Off],
                                ["error", Role.State.Error], ["starting", Role.State.Alert], ["standby", Role.State.Idle],
                                ["Offline", Role.State.Offline]]

                        Item {
                            id: sample

                            required property var modelData

                            width: (first.width - 52) / 2
                            height: 34 * Theme.textScale

                            StateWord {
                                word: sample.modelData[0]
                                role: sample.modelData[1]
                                markLeads: true
                                anchors.left: parent.left
                                anchors.leftMargin: 8
                                anchors.verticalCenter: parent.verticalCenter
                            }
                        }
                    }
                    Item {
                        width: 60
                        height: 34

                        Spinner {
                            size: 16
                            anchors.centerIn: parent
                        }
                    }
                }
            }
            Box {
                title: "Badges and tags"

                Flow {
                    width: parent.width
                    spacing: 16

                    Repeater {
                        model: ["ms_stateerror", "ms_lederror", "ms_botherror"]

                        Icon {
                            required property string modelData

                            name: modelData
                            size: 20
                        }
                    }
                    Repeater {
                        model: ["cyan", "green", "red", "purple", "blue", "grey", "yellow", "orange", "pink"]

                        Icon {
                            required property string modelData

                            name: "rg_" + modelData
                            size: 28
                        }
                    }
                }
            }
            Box {
                title: "Rows"

                Rectangle {
                    x: -8
                    width: parent.width + 16
                    height: 470 * Theme.textScale
                    color: Theme.ground

                    CardTable {
                        anchors.fill: parent
                        table: board.controller.tableView
                        label: "Systems"
                        delegate: GalleryRow {}
                        focus: true
                        Component.onCompleted: {
                            currentIndex = 3;
                            rows.selectedIndex = 1;
                            rows.keyboardUsed = true;
                        }
                    }
                }
            }
            Box {
                title: "Title view, 200 by 44"

                Rectangle {
                    x: -8
                    width: parent.width + 16
                    height: 52
                    color: Theme.ground
                    radius: 12

                    NavigationBar {
                        anchors.fill: parent
                        canGoBack: true
                        titleView: TitleView {
                            title: "Managed Systems"
                            subtitle: "updating..."
                        }
                        trailing: IconButton {
                            iconName: "search"
                            text: "Search"
                        }
                    }
                }
            }
        }
        Column {
            width: first.width
            spacing: 20

            Box {
                title: "Buttons"

                Column {
                    width: parent.width
                    spacing: 10

                    FilledButton { text: "Log In"; width: parent.width }
                    FilledButton { text: "Log In, pressed"; width: parent.width; down: true }
                    FilledButton { text: "Log In, disabled"; width: parent.width; enabled: false }
                    Row {
                        spacing: 8

                        PlainButton { text: "Save" }
                        PlainButton { text: "Save"; enabled: false }
                        IconButton { iconName: "search"; text: "Search" }
                        IconButton { iconName: "refresh"; text: "Refresh" }
                        IconButton { iconName: "add"; text: "Add" }
                        IconButton { iconName: "settings"; text: "Settings" }
                    }
                }
            }
            Box {
                title: "Switch and segments"

                Row {
                    spacing: 16
                    width: parent.width

                    Switch { checked: true; text: "On" }
                    Switch { text: "Off" }
                    SegmentedControl { titles: ["Processors", "Memory"]; label: "Metrics"; width: parent.width - 132 }
                }
            }
            Box {
                title: "Fields"

                Rectangle {
                    x: -8
                    width: parent.width + 16
                    height: sheet.implicitHeight
                    color: Theme.raised
                    radius: 12
                    border.width: 0.5
                    border.color: Theme.hairline

                    GroupCard {
                        id: sheet

                        width: parent.width
                        surface: "transparent"
                        behind: "transparent"

                        FormField { label: "Name"; outlet: board.controller.nameField }
                        FormField { label: "Address"; placeholder: "Host name or address"; outlet: board.controller.addressField }
                        FormField { label: "User ID"; outlet: board.controller.userField }
                        FormField { label: "Password"; secure: true; outlet: board.controller.passwordField }
                        StatusLine { outlet: board.controller.status; width: parent.width }
                    }
                }
            }
            Box {
                title: "Menu rows"

                GroupCard {
                    x: -8
                    width: parent.width + 16

                    MenuRow { text: "Change Passcode"; iconName: "key" }
                    MenuRow { text: "Change Passcode, pressed"; iconName: "key"; down: true }
                    MenuRow { text: "Change Passcode, disabled"; iconName: "key"; enabled: false }
                    MenuRow { text: "Version"; iconName: "release_notes"; detail: "1.0" }
                }
            }
            Box {
                title: "Swipe"

                Column {
                    x: -8
                    width: parent.width + 16
                    spacing: 12

                    SwipeCell {
                        width: parent.width
                        height: 50
                        buttons: [{"title": "Delete", "role": Role.Button.Destructive}, {"title": "Edit", "role": Role.Button.Quiet}]
                        reveal: 144
                        Label { text: "Uplands Colocation"; x: 20; anchors.verticalCenter: parent.verticalCenter }
                    }
                    SwipeCell {
                        width: parent.width
                        height: 50
                        leadingButtons: [{"title": "Good", "role": Role.Button.Standard, "imageName": "check"},
                                         {"title": "Favourite", "role": Role.Button.Favourite, "imageName": "fav"}]
                        reveal: -144
                        Label { text: "vios-harbour-2a"; x: 20; anchors.verticalCenter: parent.verticalCenter }
                    }
                    SwipeCell {
                        width: parent.width
                        height: 50
                        leadingButtons: [{"title": "Good", "role": Role.Button.Positive, "imageName": "check"}]
                        reveal: -72
                        Label { text: "vios-harbour-3b"; x: 20; anchors.verticalCenter: parent.verticalCenter }
                    }
                }
            }
        }
    }
}
