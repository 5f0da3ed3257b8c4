// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// How a console was reached: cards of rows, some with a bar of where the time went.
PageScaffold {
    id: scene

    readonly property ConnectionViewController connection: controller as ConnectionViewController

    function refresh() {
        if (connection.refreshable) {
            connection.refresh();
        }
    }

    Keys.onPressed: event => page.scrollByKey(event)
    KeyAction {
        name: "refresh"
        enabled: scene.visible
        onActivated: scene.refresh()
    }
    KeyAction {
        name: "copyAll"
        enabled: scene.visible
        onActivated: scene.connection.copyAll()
    }

    bar: NavigationBar {
        controller: scene.controller
        titleView: TitleView {
            titleOutlet: scene.connection.header.titleLabel
            subtitleOutlet: scene.connection.header.subtitleLabel
        }
        trailing: [
            IconButton {
                objectName: "copyButton"
                iconName: "copy"
                text: qsTr("Copy all")
                onClicked: scene.connection.copyAll()
            }
        ]
    }
    scrollView: page

    ScrollPage {
        id: page

        // The number of the cards and not the cards: a card that stays is written anew in its place, and the page does
        // not jump when time passes.
        Repeater {
            model: scene.connection.sections.length

            ConnectionCard {
                required property int index
                property connectionSection blank

                connection: scene.connection
                section: index < scene.connection.sections.length ? scene.connection.sections[index] : blank
                space: section.kind === ConnectionCard.Verdict ? 0 : Theme.sectionGap
                width: parent ? parent.width : 0
            }
        }
    }
}
