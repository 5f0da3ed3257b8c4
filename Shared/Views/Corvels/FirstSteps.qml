// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// What to do first, for those who have no console of their own.
Column {
    id: steps

    required property CorvelListViewController corvels
    required property string headline

    Label {
        text: steps.headline
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
        onClicked: steps.corvels.addCorvel()
    }
    Item {
        width: 1
        height: 4
    }
    PlainButton {
        text: qsTr("Import Fleet Sheet")
        wraps: true
        width: parent.width
        onClicked: steps.corvels.openFleetSheet()
    }
}
