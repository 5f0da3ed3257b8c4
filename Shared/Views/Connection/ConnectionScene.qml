// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// How a console was reached: cards of rows, some with a bar of where the time went.
PageScaffold {
    id: scene

    readonly property ConnectionViewController connection: controller as ConnectionViewController

    function scroll(by: real) {
        page.contentY = Math.max(0, Math.min(page.contentHeight - page.height, page.contentY + by));
    }
    function refresh() {
        if (connection.refreshable) {
            connection.refresh();
        }
    }

    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Down: scroll(44); break;
        case Qt.Key_Up: scroll(-44); break;
        case Qt.Key_PageDown: scroll(page.height - 44); break;
        case Qt.Key_PageUp: scroll(44 - page.height); break;
        case Qt.Key_Home: scroll(-page.contentHeight); break;
        case Qt.Key_End: scroll(page.contentHeight); break;
        default: return;
        }
        event.accepted = true;
    }
    Shortcut {
        sequences: ["F5", "Ctrl+R"]
        enabled: scene.visible
        onActivated: scene.refresh()
    }
    Shortcut {
        sequences: ["Ctrl+C"]
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
            Item {
                implicitWidth: Theme.target
                implicitHeight: Theme.target

                IconButton {
                    objectName: "refreshButton"
                    iconName: "refresh"
                    text: qsTr("Refresh this console")
                    visible: !scene.connection.updating
                    enabled: scene.connection.refreshable
                    onClicked: scene.refresh()
                }
                Spinner {
                    size: 20
                    running: scene.connection.updating
                    anchors.centerIn: parent
                }
            },
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

                section: index < scene.connection.sections.length ? scene.connection.sections[index] : blank
                space: section.kind === ConnectionCard.Verdict ? 0 : Theme.sectionGap
                width: parent ? parent.width : 0
            }
        }
    }
}
