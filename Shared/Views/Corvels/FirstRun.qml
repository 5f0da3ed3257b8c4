// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The console list without consoles: what to do first.
Item {
    id: view

    required property CorvelListViewController subject

    Flickable {
        id: page

        anchors.fill: parent
        contentHeight: Math.max(height, content.height + 80)
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: content

            x: Math.round((page.width - width) / 2)
            y: Math.max(20, Math.round((page.contentHeight - height) / 2) - 30)
            width: Math.min(280 * Theme.textScale, page.width - 80)

            Icon {
                name: "no_data_consoles"
                size: 96
                color: Theme.ink3
                anchors.horizontalCenter: parent.horizontalCenter
            }
            Item {
                width: 1
                height: 20
            }
            FirstSteps {
                corvels: view.subject
                headline: qsTr("No consoles yet.")
                width: parent.width

                Item {
                    width: 1
                    height: 4
                }
                PlainButton {
                    text: qsTr("Look at the Demo First")
                    wraps: true
                    width: parent.width
                    onClicked: view.subject.lookAtDemo()
                }
            }
        }
    }
}
