// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The console list without consoles: what to do first.
Item {
    id: view

    required property CorvelListViewController corvels

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
            Label {
                id: headline

                text: qsTr("No consoles yet.")
                width: parent.width
                bottomPadding: 4 - drop
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Label {
                text: qsTr("Give the address, user and password of one. Lodestar only reads; nothing on a console is ever changed.")
                size: Theme.stateSize
                color: Theme.ink2
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Item {
                width: 1
                height: 24
            }
            FilledButton {
                text: qsTr("Add Corvel")
                width: parent.width
                onClicked: view.corvels.addCorvel()
            }
            Item {
                width: 1
                height: 4
            }
            PlainButton {
                text: qsTr("Import Fleet Sheet")
                wraps: true
                width: parent.width
                onClicked: view.corvels.openFleetSheet()
            }
            Item {
                width: 1
                height: 4
            }
            PlainButton {
                text: qsTr("Look at the Demo First")
                wraps: true
                width: parent.width
                onClicked: view.corvels.lookAtDemo()
            }
        }
    }
}
