// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// A field for the password of each user.
GroupCard {
    id: card

    required property FleetPasswords passwords
    readonly property FormField first: fields.count > 0 ? fields.itemAt(0) as FormField : null
    signal returned()

    width: parent !== null ? parent.width : 0

    Repeater {
        id: fields

        model: card.passwords.count

        FormField {
            id: field

            required property int index
            readonly property FleetPassword password: card.passwords.at(index)

            // A row may outlive what it shows for a moment while the screen is taken down.
            label: password?.user ?? ""
            labelDetail: password?.consoles ?? ""
            labelWidth: 132
            placeholder: qsTr("Password")
            secure: true
            outlet: password?.field ?? null
            next: index + 1 < fields.count ? fields.itemAt(index + 1) as FormField : null
            onReturnPressed: {
                if (next === null) {
                    card.returned();
                }
            }
        }
    }
    MenuRow {
        visible: card.passwords.more
        text: qsTr("Show More Users")
        rowHeight: 44
        ink: Theme.accentInk
        chevron: false
        onClicked: card.passwords.showMore()
    }
}
