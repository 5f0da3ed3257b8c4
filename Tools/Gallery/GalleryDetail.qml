// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A pushed screen with fixed rows.
PageScaffold {
    id: scene

    required property var controller

    scrollView: page
    bar: NavigationBar {
        controller: scene.controller
        titleView: TitleView {
            title: "Managed Systems"
            subtitle: "updating..."
        }
        trailing: IconButton {
            iconName: "search"
            text: "Search"
        }
    }

    ScrollPage {
        id: page

        GroupCard {
            width: parent.width

            MenuRow {
                text: "Require Passcode"
                iconName: "lock"
                chevron: false
                pressable: false

                Switch {
                    text: "Require Passcode"
                    outlet: scene.controller.flip
                }
            }
            MenuRow {
                text: "Change Passcode"
                iconName: "key"
            }
            MenuRow {
                text: "Change Passcode, disabled"
                iconName: "key"
                enabled: false
            }
        }
        SectionHeader {
            text: "Corvel Overview"
            width: parent.width
        }
        GroupCard {
            width: parent.width

            MenuRow {
                text: "Managed Systems"
                iconName: "managed_systems"
                detail: "14"
            }
            MenuRow {
                text: "Virtual I/O Servers"
                iconName: "virtual_io_servers"
                detail: "not loaded"
            }
        }
    }
}
